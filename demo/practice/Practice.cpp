// SPDX-License-Identifier: MIT
#include "practice/Practice.h"

#include "practice/SampleData.h"
#include "practice/SearchText.h"
#include "practice/ServerText.h"

#include <QSqlQuery>

#include <algorithm>
#include <utility>

namespace frontdesk {

namespace {

constexpr char kVisitColumns[] =
    "SELECT visit.id, day, time, patient, last || ', ' || first, provider, reason, procedures,"
    " state, alert FROM visit JOIN patient ON patient.number = visit.patient ";

constexpr char kPatientColumns[] =
    "SELECT number, last, first, born, phone, address, insurance, policy, balance, alert"
    " FROM patient ";

Visit ReadVisit(const QSqlQuery& row) {
    return {row.value(0).toInt(),
            row.value(1).toDate(),
            row.value(2).toTime(),
            row.value(3).toInt(),
            row.value(4).toString(),
            row.value(5).toString(),
            row.value(6).toString(),
            row.value(7).toString(),
            static_cast<VisitState>(row.value(8).toInt()),
            row.value(9).toBool()};
}

Patient ReadPatient(const QSqlQuery& row) {
    return {row.value(0).toInt(),    row.value(1).toString(), row.value(2).toString(),
            row.value(3).toDate(),   row.value(4).toString(), row.value(5).toString(),
            row.value(6).toString(), row.value(7).toString(), row.value(8).toLongLong(),
            row.value(9).toBool()};
}

Payment ReadPayment(const QSqlQuery& row) {
    return {row.value(0).toInt(),      row.value(1).toInt(),      row.value(2).toDateTime(),
            row.value(3).toLongLong(), row.value(4).toLongLong(), row.value(5).toString(),
            row.value(6).toString()};
}

template <class Record>
std::vector<Record> ReadAll(QSqlQuery rows, Record (*read)(const QSqlQuery& row)) {
    std::vector<Record> records;
    while (rows.next()) records.push_back(read(rows));
    return records;
}

/// A text from all columns of the rows.
QByteArray TextOf(QSqlQuery rows, int columns, TextFormat format, const QStringList& header = {}) {
    ServerText text(format);
    if (!header.isEmpty()) text.Add(header);
    while (rows.next()) {
        QStringList values;
        for (int i = 0; i < columns; ++i) values << rows.value(i).toString();
        text.Add(values);
    }
    return text.Bytes();
}

int Number(VisitState state) {
    return static_cast<int>(state);
}

}  // namespace

Practice::Practice(std::unique_ptr<Database> database) : database_(std::move(database)) {}

std::unique_ptr<Practice> Practice::Open(const QString& path, QString& fault) {
    auto database = Database::Open(path, fault);
    if (database == nullptr) return nullptr;
    if (database->IsEmpty() && !MakeSamplePractice(*database, fault)) {
        fault = path + " cannot be filled: " + fault + '.';
        return nullptr;
    }
    std::unique_ptr<Practice> practice(new Practice(std::move(database)));
    practice->StartClock();
    return practice;
}

void Practice::OnFault(std::function<void(const QString& fault)> report) {
    database_->OnFault(std::move(report));
}

// The practice's clock goes while the client runs: its day is the same whenever it is opened.
void Practice::StartClock() {
    QSqlQuery clock = database_->Run("SELECT value FROM clock");
    opened_ = clock.next() ? clock.value(0).toDateTime() : QDateTime::currentDateTime();
    sinceOpened_.start();
}

QDateTime Practice::Now() const {
    return opened_.addMSecs(sinceOpened_.elapsed());
}

QByteArray Practice::Codes() {
    return TextOf(database_->Run("SELECT title, name, lookup, menu, report, sorted, sorted_then,"
                                 " entity, system FROM code_table ORDER BY rowid"),
                  9, TextFormat::Codes);
}

QByteArray Practice::Rights(const QString& user) {
    return TextOf(
        database_->Run("SELECT item, digit FROM user_right WHERE user = ? ORDER BY rowid", {user}),
        2, TextFormat::Rights);
}

QByteArray Practice::Printers() {
    return TextOf(database_->Run("SELECT id, 0, description, port FROM printer ORDER BY rowid"), 4,
                  TextFormat::Printers);
}

QByteArray Practice::Settings(const QString& user) {
    QSqlQuery row = database_->Run("SELECT text FROM setting WHERE user = ?", {user});
    return row.next() ? row.value(0).toByteArray() : QByteArray();
}

QByteArray Practice::Reminders(int patient) {
    QSqlQuery row = database_->Run(
        "SELECT tab, line FROM reminder WHERE patient = ? ORDER BY rowid", {patient});
    std::vector<QStringList> tabs;
    while (row.next()) {
        const QString tab = row.value(0).toString();
        if (tabs.empty() || tabs.back().first() != tab) tabs.push_back({tab});
        tabs.back() << row.value(1).toString();
    }
    ServerText text(TextFormat::Reminders);
    for (const QStringList& tab : tabs) text.Add(tab);
    const std::optional<Patient> found = Find(patient);
    if (found && found->hasAlert) text.End(u"\u00A31"_qs);
    return text.Bytes();
}

QByteArray Practice::Time() {
    return Now().toString("MM/dd/yyyy, HH:mm:ss").toLatin1();
}

QByteArray Practice::List(const QString& table, bool byDescription) {
    return TextOf(database_->Run(QString("SELECT code, description, deleted FROM code"
                                         " WHERE code_table = ? ORDER BY %1")
                                     .arg(byDescription ? "description" : "code"),
                                 {table}),
                  3, TextFormat::Selection, {"Code", "Description", "Deleted"});
}

std::vector<halvek::Color> Practice::Colors() {
    return ReadAll<halvek::Color>(database_->Run("SELECT value FROM color ORDER BY rowid"),
                                  [](const QSqlQuery& row) { return row.value(0).toInt(); });
}

std::vector<Reason> Practice::Reasons() {
    return ReadAll<Reason>(
        database_->Run("SELECT code, description, procedure, color FROM reason ORDER BY rowid"),
        [](const QSqlQuery& row) {
            return Reason{row.value(0).toString(), row.value(1).toString(), row.value(2).toString(),
                          row.value(3).toInt()};
        });
}

QStringList Practice::Providers() {
    QStringList providers;
    QSqlQuery row = database_->Run("SELECT DISTINCT provider FROM visit ORDER BY provider");
    while (row.next()) providers << row.value(0).toString();
    return providers;
}

std::vector<QTime> Practice::Times() {
    return ReadAll<QTime>(database_->Run("SELECT DISTINCT time FROM visit ORDER BY time"),
                          [](const QSqlQuery& row) { return row.value(0).toTime(); });
}

std::vector<Visit> Practice::Visits(const QDate& day) {
    return ReadAll<Visit>(
        database_->Run(QString(kVisitColumns) + "WHERE day = ? ORDER BY time, provider",
                       {day.toString(Qt::ISODate)}),
        ReadVisit);
}

std::vector<Visit> Practice::VisitsOf(int patient) {
    return ReadAll<Visit>(
        database_->Run(QString(kVisitColumns) + "WHERE patient = ? ORDER BY day DESC, time DESC",
                       {patient}),
        ReadVisit);
}

std::optional<Patient> Practice::Find(int patient) {
    QSqlQuery row = database_->Run(QString(kPatientColumns) + "WHERE number = ?", {patient});
    if (!row.next()) return std::nullopt;
    return ReadPatient(row);
}

std::vector<Patient> Practice::Search(const QString& text, int most) {
    const QString wanted = SearchText(text);
    const qsizetype length = wanted.size();
    if (length == 0) return {};
    return ReadAll<Patient>(
        database_->Run(QString(kPatientColumns) +
                           "WHERE substr(search, 1, ?) = ? OR substr(first_search, 1, ?) = ?"
                           " OR substr(number, 1, ?) = ? ORDER BY search LIMIT ?",
                       {length, wanted, length, wanted, length, wanted, most}),
        ReadPatient);
}

std::vector<Payment> Practice::Payments(int patient) {
    return ReadAll<Payment>(
        database_->Run("SELECT id, patient, posted, amount, adjustment, method, printer"
                       " FROM payment WHERE patient = ? ORDER BY id DESC",
                       {patient}),
        ReadPayment);
}

std::optional<QString> Practice::Description(const QString& table, const QString& code) {
    QSqlQuery row = database_->Run("SELECT description FROM code WHERE code_table = ? AND code = ?",
                                   {table, code});
    if (!row.next()) return std::nullopt;
    return row.value(0).toString();
}

qint64 Practice::CopayOf(const QString& insurance) {
    QSqlQuery row =
        database_->Run("SELECT copay FROM code WHERE code_table = 'INS' AND code = ?", {insurance});
    return row.next() ? row.value(0).toLongLong() : 0;
}

bool Practice::CheckIn(const Arrival& arrival) {
    Transaction act(*database_);
    database_->Run(
        "UPDATE visit SET provider = ?, procedures = ?, state = ? WHERE id = ?",
        {arrival.provider, arrival.procedures, Number(VisitState::CheckedIn), arrival.visit});
    database_->Run(
        "UPDATE patient SET insurance = ?, balance = balance + ?"
        " WHERE number = (SELECT patient FROM visit WHERE id = ?)",
        {arrival.insurance, CopayOf(arrival.insurance), arrival.visit});
    if (arrival.next.isValid()) BookNext(arrival);
    return Finish(act);
}

void Practice::BookNext(const Arrival& arrival) {
    QSqlQuery visit =
        database_->Run("SELECT time, patient FROM visit WHERE id = ?", {arrival.visit});
    if (!visit.next()) return;
    const QTime time = FreeTime(arrival.next, arrival.provider, visit.value(0).toTime());
    const int patient = visit.value(1).toInt();
    visit.finish();
    database_->Run(
        "INSERT INTO visit (day, time, patient, provider, reason, procedures, state)"
        " VALUES (?, ?, ?, ?, 'FU', '', ?)",
        {arrival.next.toString(Qt::ISODate), time.toString("HH:mm"), patient, arrival.provider,
         Number(VisitState::Expected)});
}

QTime Practice::FreeTime(const QDate& day, const QString& provider, const QTime& wanted) {
    std::vector<QTime> taken;
    for (const Visit& visit : Visits(day)) {
        if (visit.provider == provider) taken.push_back(visit.time);
    }
    const auto isFree = [&](const QTime& time) {
        return std::find(taken.begin(), taken.end(), time) == taken.end();
    };
    for (const QTime& time : Times()) {
        if (time >= wanted && isFree(time)) return time;
    }
    for (const QTime& time : Times()) {
        if (isFree(time)) return time;
    }
    return wanted;
}

bool Practice::Post(const Payment& payment) {
    const QDateTime now = Now();
    Transaction act(*database_);
    database_->Run(
        "INSERT INTO payment (patient, posted, amount, adjustment, method, printer)"
        " VALUES (?, ?, ?, ?, ?, ?)",
        {payment.patient, now.toString(Qt::ISODate), payment.amount, payment.adjustment,
         payment.method, payment.printer});
    database_->Run("UPDATE patient SET balance = balance - ? + ? WHERE number = ?",
                   {payment.amount, payment.adjustment, payment.patient});
    database_->Run("UPDATE visit SET state = ? WHERE patient = ? AND day = ? AND state = ?",
                   {Number(VisitState::Paid), payment.patient, now.date().toString(Qt::ISODate),
                    Number(VisitState::CheckedIn)});
    return Finish(act);
}

bool Practice::CancelVisit(int visit) {
    Transaction act(*database_);
    database_->Run("DELETE FROM visit WHERE id = ?", {visit});
    return Finish(act);
}

bool Practice::SetReasonColor(const QString& code, halvek::Color color) {
    Transaction act(*database_);
    database_->Run("UPDATE reason SET color = ? WHERE code = ?", {color, code});
    return Finish(act);
}

bool Practice::SaveSettings(const QString& user, const QByteArray& settings) {
    Transaction act(*database_);
    database_->Run("INSERT OR REPLACE INTO setting (user, text) VALUES (?, ?)", {user, settings});
    return Finish(act);
}

bool Practice::Finish(Transaction& act) {
    database_->Run("UPDATE clock SET value = ?", {Now().toString(Qt::ISODate)});
    return act.Commit();
}

}  // namespace frontdesk
