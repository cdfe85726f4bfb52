// SPDX-License-Identifier: MIT
#pragma once

#include <QLineEdit>
#include <QPointer>
#include <QString>

namespace halvek {

class CurrencyEvents;

/// The lower field of a range, and the names of both in a message.
struct CurrencyRange {
    QPointer<QLineEdit> from;
    QString lblMin;
    QString lblMax;
};

/// Checks a field, which shows its amount already, in every range of its window that it is part of.
/// Shows a message and returns false when a range is the wrong way round. The host may destroy the
/// field while the message is open.
bool IsInOrder(QLineEdit& line, const CurrencyEvents& events);

}  // namespace halvek
