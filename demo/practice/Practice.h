// SPDX-License-Identifier: MIT
#pragma once

#include "practice/Database.h"
#include "practice/Records.h"

#include <QByteArray>
#include <QElapsedTimer>
#include <QString>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace frontdesk {

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
    void OnFault(std::function<void(const QString& fault)> report);

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
    std::vector<halvek::Color> Colors();
    std::vector<Reason> Reasons();
    /// The providers whose columns the schedule shows.
    QStringList Providers();
    /// The starts of visits on any day.
    std::vector<QTime> Times();
    std::vector<Visit> Visits(const QDate& day);
    std::vector<Visit> VisitsOf(int patient);
    std::optional<Patient> Find(int patient);
    /// Patients whose number or name begins with a text; accents and letter case do not matter.
    std::vector<Patient> Search(const QString& text, int most);
    std::vector<Payment> Payments(int patient);
    /// The description of an entry; nothing when the table lacks it.
    std::optional<QString> Description(const QString& table, const QString& code);
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
    explicit Practice(std::unique_ptr<Database> database);
    void StartClock();
    void BookNext(const Arrival& arrival);
    /// The first free start of a provider's day from a time on, or else before it.
    QTime FreeTime(const QDate& day, const QString& provider, const QTime& wanted);
    /// Ends an act: the clock goes on from here when the file is opened again.
    bool Finish(Transaction& act);

    std::unique_ptr<Database> database_;
    QDateTime opened_;
    QElapsedTimer sinceOpened_;
};

}  // namespace frontdesk
