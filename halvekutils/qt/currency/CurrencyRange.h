// SPDX-License-Identifier: MIT
#pragma once

#include <QLineEdit>
#include <QPointer>
#include <QString>

namespace halvek {

class CurrencyEvents;

/// The lower field of a range, and what a message calls both.
struct CurrencyRange {
    QPointer<QLineEdit> from;
    QString lblMin;
    QString lblMax;
};

/// Checks a field that shows its amount as it is left, with every range of its window that it is
/// the upper or the lower field of. False when one is the wrong way round, and a message has told.
/// The message may end the field.
bool IsInOrder(QLineEdit& line, const CurrencyEvents& events);

}  // namespace halvek
