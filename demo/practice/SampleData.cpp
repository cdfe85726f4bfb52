// SPDX-License-Identifier: MIT
#include "practice/SampleData.h"

#include "practice/SampleTables.h"
#include "practice/Schema.h"
#include "practice/SearchText.h"

#include <QDate>
#include <QTime>

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <vector>

namespace frontdesk {

namespace {

constexpr int kDueState = static_cast<int>(VisitState::Due);
constexpr int kCopay = 2500;

/// The same numbers in every practice.
class Dice {
  public:
    int Below(int limit) {
        state_ = state_ * 6364136223846793005U + 1442695040888963407U;
        return static_cast<int>((state_ >> 33U) % static_cast<std::uint64_t>(limit));
    }
    template <class T, std::size_t n>
    const T& OneOf(const T (&table)[n]) {
        return table[Below(static_cast<int>(n))];
    }

  private:
    std::uint64_t state_ = 20240305;
};

class Maker {
  public:
    explicit Maker(Database& database) : database_(database) {}

    void MakeAll() {
        for (const char* table : kSchema) database_.Run(table);
        MakeSettings();
        MakeCodes();
        MakePatients();
        MakeReminders();
        MakeHistory();
        QDate day = QDate::fromString(kFirstDay, Qt::ISODate);
        for (int made = 0; made < kDays; day = day.addDays(1)) {
            if (day.dayOfWeek() > Qt::Friday) continue;
            MakeDay(day);
            ++made;
        }
    }

  private:
    void MakeSettings();
    void MakeCodes();
    void MakePatients();
    void AddPatient(QSqlQuery& insert, const PatientRow& patient);
    PatientRow AnyPatient(int number);
    int AnyNumber();
    void MakeReminders();
    void MakeHistory();
    void MakeDay(const QDate& day);
    std::vector<int> AnySlots(int mustHave);
    const ReasonRow& AnyReason();
    int StateAt(const QDateTime& start, int patient);

    Database& database_;
    Dice dice_;
    int nextKnown_ = 0;
    const QDateTime now_ = QDateTime::fromString(kClock, Qt::ISODate);
};

void Maker::MakeSettings() {
    database_.Run("INSERT INTO clock VALUES (?)", {kClock});
    for (const halvek::Color color : kPalette) {
        database_.Run("INSERT INTO color VALUES (?)", {color});
    }
    // The colour of required fields is the sixth of the settings, the last that is sent.
    const QByteArray settings = QByteArray(5, '\xDF') + QByteArray::number(kRequiredField);
    database_.Run("INSERT INTO setting VALUES (?, ?)", {kUser, settings});
    for (const ReasonRow& row : kReasons) {
        database_.Run("INSERT INTO reason VALUES (?, ?, ?, ?)",
                      {row.code, row.description, row.procedure, row.color});
    }
    for (const PrinterRow& row : kPrinters) {
        database_.Run("INSERT INTO printer VALUES (?, ?, ?)", {row.id, row.description, row.port});
    }
    for (const RightRow& row : kRights) {
        database_.Run("INSERT INTO user_right VALUES (?, ?, ?)", {kUser, row.item, row.digit});
    }
}

void Maker::MakeCodes() {
    for (const CodeTableRow& row : kCodeTables) {
        database_.Run("INSERT INTO code_table VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?)",
                      {row.name, row.title, row.lookup, row.menu, row.report, row.sorted,
                       row.sortedThen, row.entity, row.system});
    }
    for (const CodeRow& row : kCodes) {
        database_.Run("INSERT INTO code VALUES (?, ?, ?, ?, ?)",
                      {row.table, row.code, row.description, row.deleted, row.copay});
    }
    QSqlQuery insert = database_.Prepared("INSERT INTO code VALUES ('PRC', ?, ?, 0, 0)");
    int count = static_cast<int>(std::size(kCodes));
    int number = 1000;
    for (const char* service : kServices) {
        for (const char* site : kSites) {
            for (const char* side : kSides) {
                if (count++ >= kCodeCount) return;
                const QString description = QString("%1, %2%3").arg(service, site, side);
                database_.RunAgain(insert, {QString("P%1").arg(number++), description});
            }
        }
    }
}

void Maker::MakePatients() {
    QSqlQuery insert = database_.Prepared(
        "INSERT INTO patient (number, last, first, search, first_search, born, phone, address,"
        " insurance, policy, balance) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)");
    for (int number = kFirstNumber; number < kFirstNumber + kPatientCount; ++number) {
        const auto* known =
            std::find_if(std::begin(kKnownPatients), std::end(kKnownPatients),
                         [&](const PatientRow& patient) { return patient.number == number; });
        AddPatient(insert, known == std::end(kKnownPatients) ? AnyPatient(number) : *known);
    }
}

PatientRow Maker::AnyPatient(int number) {
    constexpr const char* kBirthdays[] = {"1938-02-14", "1951-10-30", "1960-06-06", "1968-08-21",
                                          "1974-01-09", "1982-12-03", "1990-05-27", "1997-09-15",
                                          "2006-03-22", "2012-11-11", "2019-07-04"};
    constexpr const char* kInsurances[] = {"AETOS", "BLUEC", "CEDAR", "FRANC", "HARBR",
                                           "MEDB",  "NORTH", "UNION", "VETER", "SELF"};
    const int owes = dice_.Below(4) == 0 ? 500 * (1 + dice_.Below(40)) : 0;
    return {number,
            dice_.OneOf(kLastNames),
            dice_.OneOf(kFirstNames),
            dice_.OneOf(kBirthdays),
            dice_.OneOf(kInsurances),
            owes};
}

void Maker::AddPatient(QSqlQuery& insert, const PatientRow& patient) {
    const QString name = SearchText(QString("%1, %2").arg(patient.last, patient.first));
    const QString phone =
        QString("(555) %1-%2").arg(200 + dice_.Below(700)).arg(1000 + dice_.Below(9000));
    const QString address = QString("%1 %2").arg(1 + dice_.Below(180)).arg(dice_.OneOf(kStreets));
    const QString policy =
        QString("%1-%2").arg(patient.insurance).arg(100000 + dice_.Below(900000));
    database_.RunAgain(
        insert, {patient.number, patient.last, patient.first, name, SearchText(patient.first),
                 patient.born, phone, address, patient.insurance, policy, patient.balance});
}

void Maker::MakeReminders() {
    for (const ReminderRow& row : kReminders) {
        database_.Run("INSERT INTO reminder VALUES (?, ?, ?)", {row.patient, row.tab, row.line});
        if (row.alert)
            database_.Run("UPDATE patient SET alert = 1 WHERE number = ?", {row.patient});
    }
}

void Maker::MakeHistory() {
    for (const HistoryRow& row : kHistory) {
        database_.Run(
            "INSERT INTO visit (day, time, patient, provider, reason, procedures, state)"
            " VALUES (?, ?, ?, 'PATEL', 'FU', ?, ?)",
            {row.day, row.time, kDuePatient, row.procedures, static_cast<int>(VisitState::Paid)});
        database_.Run(
            "INSERT INTO payment (patient, posted, amount, adjustment, method, printer)"
            " VALUES (?, ?, ?, 0, ?, 'Front office laser')",
            {kDuePatient, QString("%1T%2:00").arg(row.day, row.time), row.amount, row.method});
    }
}

void Maker::MakeDay(const QDate& day) {
    QSqlQuery visit = database_.Prepared(
        "INSERT INTO visit (day, time, patient, provider, reason, procedures, state)"
        " VALUES (?, ?, ?, ?, ?, '', ?)");
    QSqlQuery payment = database_.Prepared(
        "INSERT INTO payment (patient, posted, amount, adjustment, method, printer)"
        " VALUES (?, ?, ?, 0, 'Card', '')");
    for (const char* provider : kProviders) {
        const bool hasDue = day == now_.date() && QString(provider) == "PATEL";
        for (const int slot : AnySlots(hasDue ? 1 : 0)) {
            const QDateTime start(day, QTime(kOpenHours[slot / 3], slot % 3 * 20));
            int patient = AnyNumber();
            const bool isKnown =
                day == now_.date() && nextKnown_ < static_cast<int>(std::size(kKnownPatients));
            if (hasDue && slot == 1) {
                patient = kDuePatient;
            } else if (isKnown && dice_.Below(3) == 0) {
                if (kKnownPatients[nextKnown_].number == kDuePatient) ++nextKnown_;
                patient = kKnownPatients[nextKnown_++].number;
            }
            const int state = StateAt(start, patient);
            const ReasonRow& reason = patient == kDuePatient ? kReasons[1] : AnyReason();
            database_.RunAgain(visit, {day.toString(Qt::ISODate), start.toString("HH:mm"), patient,
                                       provider, reason.code, state});
            if (state == static_cast<int>(VisitState::Paid)) {
                database_.RunAgain(payment,
                                   {patient, start.addSecs(300).toString(Qt::ISODate), kCopay});
            }
        }
    }
}

/// Anybody but the patient who is due.
int Maker::AnyNumber() {
    const int number = kFirstNumber + dice_.Below(kPatientCount);
    return number == kDuePatient ? kFirstNumber : number;
}

/// Ten of the day's starts in order, among them one that must be there.
std::vector<int> Maker::AnySlots(int mustHave) {
    constexpr int kSlots = 3 * static_cast<int>(std::size(kOpenHours));
    std::vector<int> starts = {mustHave};
    while (static_cast<int>(starts.size()) < kVisitsPerProvider) {
        const int slot = dice_.Below(kSlots);
        if (std::find(starts.begin(), starts.end(), slot) == starts.end()) starts.push_back(slot);
    }
    std::sort(starts.begin(), starts.end());
    return starts;
}

const ReasonRow& Maker::AnyReason() {
    int share = dice_.Below(100);
    for (const ReasonRow& reason : kReasons) {
        share -= reason.share;
        if (share < 0) return reason;
    }
    return kReasons[0];
}

int Maker::StateAt(const QDateTime& start, int patient) {
    VisitState state = VisitState::Expected;
    if (start.date() < now_.date()) state = VisitState::Paid;
    if (start.date() == now_.date() && start < now_) {
        state = dice_.Below(2) == 0 ? VisitState::Paid : VisitState::CheckedIn;
        if (patient == kDuePatient) return kDueState;
    }
    return static_cast<int>(state);
}

}  // namespace

bool MakeSamplePractice(Database& database, QString& fault) {
    database.OnFault([&](const QString& reason) { fault = reason; });
    Transaction whole(database);
    Maker(database).MakeAll();
    const bool made = whole.Commit();
    database.OnFault({});
    return made;
}

}  // namespace frontdesk
