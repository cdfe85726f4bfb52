// SPDX-License-Identifier: MIT
#pragma once

#include <QDate>
#include <QLocale>
#include <QString>
#include <QTime>

namespace frontdesk {

// How the client writes amounts, days and times: as the library does, whatever the locale is.

inline QLocale Us() {
    return QLocale(QLocale::English, QLocale::UnitedStates);
}

/// "$1,234.50" from cents; "-$5.00" below zero.
inline QString Money(qint64 cents) {
    const QString digits =
        Us().toString(qAbs(cents) / 100) + QString(".%1").arg(qAbs(cents) % 100, 2, 10, QChar('0'));
    return (cents < 0 ? "-$" : "$") + digits;
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

/// The next day from Monday to Friday, in steps of 1 or -1.
inline QDate WorkingDay(QDate day, int step) {
    do {
        day = day.addDays(step);
    } while (day.dayOfWeek() > Qt::Friday);
    return day;
}

}  // namespace frontdesk
