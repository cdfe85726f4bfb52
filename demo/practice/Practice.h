// SPDX-License-Identifier: MIT
#pragma once

#include "practice/Database.h"
#include "practice/ServerText.h"

#include <halvekutils/base/Color.h>

#include <QByteArray>
#include <QDate>
#include <QDateTime>
#include <QElapsedTimer>
#include <QList>
#include <QString>
#include <QStringList>
#include <QTime>

#include <functional>
#include <memory>
#include <optional>
#include <utility>

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
};

struct Payment {
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

/// Who is signed in, and the patient who is due, in the sample data.
inline constexpr char kUser[] = "dsmith";
inline constexpr int kDuePatient = 10117;

/// Stands in for the practice's server. It answers what the library reads in the delimited texts of
/// such servers, as bytes in Windows-1252, and keeps the practice in a SQLite file.
///
/// Each act of the desk is one transaction: it returns true once it is on the disk, and false, with
/// nothing stored, when the file cannot be written.
class Practice {
  public:
    /// Opens a practice's file; an empty or missing one is filled with sample data. Without a
    /// practice, `fault` says why.
    static std::unique_ptr<Practice> Open(const QString& path, QString& fault);

    /// Is called with the reason whenever the file cannot be read or written.
    void OnFault(std::function<void(const QString& fault)> report) {
        database_->OnFault(std::move(report));
    }

    // What the library reads, as the server sends it

    QByteArray Codes();
    QByteArray Rights(const QString& user);
    QByteArray Printers();
    QByteArray Settings(const QString& user);
    QByteArray Reminders(int patient);
    /// Date and time, with a comma between them.
    QByteArray Time();
    /// The entries of a code table, by code or by description.
    QByteArray List(const QString& table, bool byDescription);

    // What the client's own screens show

    QDateTime Now() const;
    QList<halvek::Color> Colors();
    QList<Reason> Reasons();
    /// Why the patient comes; an unknown code stands for itself.
    Reason ReasonOf(const Visit& visit);
    /// The providers whose columns the schedule shows.
    QStringList Providers();
    /// The starts of visits on any day.
    QList<QTime> Times();
    QList<Visit> Visits(const QDate& day);
    QList<Visit> VisitsOf(int patient);
    /// The visit of today that is not paid yet.
    std::optional<Visit> VisitOfToday(int patient);
    std::optional<Patient> Find(int patient);
    /// Patients whose number or name begins with a text; accents and letter case do not matter.
    QList<Patient> Search(const QString& text, int most);
    QList<Payment> Payments(int patient);
    /// The description of an entry; empty when the table lacks it.
    QString Description(const QString& table, const QString& code);
    /// What an insurance asks its members to pay for a visit, in cents.
    qint64 CopayOf(const QString& insurance);

    // What the desk does

    /// Stores the arrival, charges the copay and books the next visit.
    bool CheckIn(const Arrival& arrival);
    /// Takes a payment off the balance; a visit of today that was checked in is then paid.
    bool Post(const Payment& payment);
    bool CancelVisit(int visit);
    bool SetReasonColor(const QString& code, halvek::Color color);
    bool SaveSettings(const QString& user, const QByteArray& settings);

  private:
    explicit Practice(std::unique_ptr<Database> database) : database_(std::move(database)) {}
    bool Fill(QString& fault);
    QByteArray Text(TextFormat format, const QString& sql, const QVariantList& values = {});
    void BookNext(const Arrival& arrival);
    /// Stores an act; the clock goes on from here when the file is opened again.
    bool Store(const std::function<void()>& act);
    /// The same for an act of one statement.
    bool StoreOne(const QString& sql, const QVariantList& values);

    std::unique_ptr<Database> database_;
    QDateTime opened_;
    QElapsedTimer sinceOpened_;
};

}  // namespace frontdesk
