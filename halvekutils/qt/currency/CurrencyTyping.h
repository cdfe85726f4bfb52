// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/currency/AmountText.h>

#include <QLineEdit>
#include <QString>

namespace halvek {

class CurrencyEvents;

// What the user does in a currency field. What the rules make of it goes into the line edit as one
// change, which is one step for undo and one signal for the host. What they refuse beeps.

/// Types a character, or Backspace; true when the line edit must not see the key.
bool TypeInto(QLineEdit& line, char16_t letter, const CurrencyEvents& events, AmountSign sign);

/// Puts a text in the place of the selection; false when what would result is refused.
bool InsertInto(QLineEdit& line, const QString& piece, AmountSign sign);

/// An amount as a bare number, and what is selected of it.
struct BareSelection {
    QString text;
    int start;
    int length;
};

/// The bare number that a line edit's amount is, "$1,234.50" say, with the same selected; the text
/// as it is for what could have been typed and for what is no amount.
BareSelection BareSelectionOf(const QLineEdit& line);

}  // namespace halvek
