// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Color.h>

#include <QDate>
#include <QDateTime>
#include <QString>
#include <QTime>

namespace frontdesk {

/// How far a visit has come; stored as its number.
enum class VisitState { Expected, Due, CheckedIn, Paid };

struct Patient {
    int number = 0;
    QString last;
    QString first;
    QDate born;
    QString phone;
    QString address;
    QString insurance;  ///< its code
    QString policy;
    qint64 balance = 0;  ///< what the patient owes, in cents
    bool hasAlert = false;

    QString Name() const { return last + ", " + first; }
};

struct Visit {
    int id = 0;
    QDate day;
    QTime time;
    int patient = 0;
    QString patientName;
    QString provider;  ///< codes, as everything below
    QString reason;
    QString procedures;
    VisitState state = VisitState::Expected;
    bool hasAlert = false;
};

struct Payment {
    int id = 0;
    int patient = 0;
    QDateTime posted;
    qint64 amount = 0;      ///< in cents
    qint64 adjustment = 0;  ///< in cents, below 0 for what is taken off the balance
    QString method;
    QString printer;  ///< of the receipt
};

/// Why a patient comes, and what the schedule makes of it.
struct Reason {
    QString code;
    QString description;
    QString procedure;
    halvek::Color color = 0;
};

/// What the desk enters when a patient arrives.
struct Arrival {
    int visit = 0;
    QString insurance;
    QString provider;
    QString procedures;
    QDate next;  ///< of the next visit; none when it is null
};

}  // namespace frontdesk
