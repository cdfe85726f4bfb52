// SPDX-License-Identifier: MIT
#pragma once

#include "practice/Practice.h"

#include <QDate>
#include <QLocale>
#include <QString>
#include <QTime>

#include <cstddef>

namespace frontdesk {

// How the client writes amounts, days and times: as the library does, whatever the locale is.

inline QLocale Us() {
    return QLocale(QLocale::English, QLocale::UnitedStates);
}

/// "$1,234.50" from cents; "-$5.00" below zero.
inline QString Money(qint64 cents) {
    const QString amount = Us().toCurrencyString(static_cast<double>(qAbs(cents)) / 100, "$");
    return cents < 0 ? '-' + amount : amount;
}

/// The same; nothing for no adjustment.
inline QString AdjustmentText(qint64 cents) {
    return cents == 0 ? QString() : Money(cents);
}

/// "03/05/2024"
inline QString DayText(const QDate& day) {
    return Us().toString(day, "MM/dd/yyyy");
}

/// A day from such a text; a null day when it is none.
inline QDate DayFrom(const QString& text) {
    return QDate::fromString(text, "MM/dd/yyyy");
}

/// "8:20 AM"
inline QString TimeText(const QTime& time) {
    return Us().toString(time, "h:mm AP");
}

/// How the client calls a state.
inline QString StateName(VisitState state) {
    constexpr const char* kNames[] = {"expected", "DUE", "checked in", "paid"};
    return kNames[static_cast<std::size_t>(state)];
}

}  // namespace frontdesk
