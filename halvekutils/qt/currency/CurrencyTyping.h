// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/currency/AmountText.h>

#include <QLineEdit>
#include <QString>

namespace halvek {

class CurrencyEvents;

// What the user does in a currency field. The result goes into the line edit as one change: one
// step for undo and one signal for the host. A refusal beeps.

/// Types a character, or Backspace; true when the line edit must not see the key.
bool TypeInto(QLineEdit& line, char16_t letter, const CurrencyEvents& events, AmountSign sign);

/// Replaces the selection with a text; false when the result would be refused.
bool InsertInto(QLineEdit& line, const QString& piece, AmountSign sign);

/// An amount as a bare number, with its selection.
struct BareSelection {
    QString text;
    int start;
    int length;
};

/// A line edit's amount ("$1,234.50", say) as a bare number with the same digits selected. A text
/// that could have been typed, or is not an amount, stays as it is.
BareSelection BareSelectionOf(const QLineEdit& line);

}  // namespace halvek
