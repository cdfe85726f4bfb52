// SPDX-License-Identifier: MIT
#include "practice/Practice.h"

#include <QFile>
#include <QSqlQuery>
#include <QSqlRecord>

#include <algorithm>

namespace frontdesk {

namespace {

constexpr char kVisits[] =
    "SELECT visit.id, day, time, patient, last || ', ' || first, provider, reason, procedures,"
    " state FROM visit JOIN patient ON patient.number = visit.patient ";

constexpr char kPatients[] =
    "SELECT number, last, first, born, phone, address, insurance, policy, balance, alert"
    " FROM patient ";

constexpr char kReasons[] = "SELECT code, description, procedure, color FROM reason ";

Visit ReadVisit(const QSqlQuery& row) {
    return {row.value(0).toInt(),
            row.value(1).toDate(),
            row.value(2).toTime(),
            row.value(3).toInt(),
            row.value(4).toString(),
            row.value(5).toString(),
            row.value(6).toString(),
            row.value(7).toString(),
            static_cast<VisitState>(row.value(8).toInt())};
}

Patient ReadPatient(const QSqlQuery& row) {
    return {row.value(0).toInt(),    row.value(1).toString(), row.value(2).toString(),
            row.value(3).toDate(),   row.value(4).toString(), row.value(5).toString(),
            row.value(6).toString(), row.value(7).toString(), row.value(8).toLongLong(),
            row.value(9).toBool()};
}

Payment ReadPayment(const QSqlQuery& row) {
    return {row.value(0).toInt(),      row.value(1).toDateTime(), row.value(2).toLongLong(),
            row.value(3).toLongLong(), row.value(4).toString(),   row.value(5).toString()};
}

Reason ReadReason(const QSqlQuery& row) {
    return {row.value(0).toString(), row.value(1).toString(), row.value(2).toString(),
            row.value(3).toInt()};
}

/// All columns of a row, as the server's texts hold them.
QStringList ReadTexts(const QSqlQuery& row) {
    QStringList texts;
    for (int i = 0; i < row.record().count(); ++i) texts << row.value(i).toString();
    return texts;
}

template <class Read>
auto ReadAll(QSqlQuery rows, Read read) {
    QList<decltype(read(rows))> records;
    while (rows.next()) records << read(rows);
    return records;
}

/// The first column of a row.
template <class Type>
Type ReadOne(const QSqlQuery& row) {
    return row.value(0).value<Type>();
}

/// A text as patients are searched for: without accents, in small letters, so that "garcia" finds
/// García and "weiss" Weiß.
QString SearchText(const QString& text) {
    const QString folded = text.trimmed().toCaseFolded().normalized(QString::NormalizationForm_KD);
    QString plain;
    for (const QChar letter : folded) {
        if (letter.category() != QChar::Mark_NonSpacing) plain += letter;
    }
    return plain.replace(u'\u00DF', "ss").replace(u'\u00E6', "ae");
}

}  // namespace

std::unique_ptr<Practice> Practice::Open(const QString& path, QString& fault) {
    auto database = Database::Open(path, fault);
    if (database == nullptr) return nullptr;
    std::unique_ptr<Practice> practice(new Practice(std::move(database)));
    if (practice->database_->IsEmpty() && !practice->Fill(fault)) {
        fault = path + " cannot be filled: " + fault + '.';
        return nullptr;
    }
    // The practice's clock goes while the client runs: its day is the same whenever it is opened.
    practice->opened_ = practice->database_->Value("SELECT value FROM clock").toDateTime();
    practice->sinceOpened_.start();
    return practice;
}

// In one transaction: a client that is killed meanwhile leaves an empty file.
bool Practice::Fill(QString& fault) {
    QFile script(":/practice/sample.sql");
    if (!script.open(QIODevice::ReadOnly)) return false;
    const QString sql = QString::fromUtf8(script.readAll());
    OnFault([&](const QString& reason) { fault += fault.isEmpty() ? reason : QString(); });
    const bool isFilled = database_->Store([&] {
        for (const QString& statement : sql.split(";\n", Qt::SkipEmptyParts)) {
            database_->Run(statement);
        }
    });
    OnFault({});
    return isFilled;
}

QDateTime Practice::Now() const {
    return opened_.addMSecs(sinceOpened_.elapsed());
}

QByteArray Practice::Text(TextFormat format, const QString& sql, const QVariantList& values) {
    return ServerText(format, ReadAll(database_->Run(sql, values), ReadTexts));
}

QByteArray Practice::Codes() {
    return Text(TextFormat::Codes,
                "SELECT title, name, lookup, menu, report, sorted, sorted_then, entity, system"
                " FROM code_table ORDER BY rowid");
}

QByteArray Practice::Rights(const QString& user) {
    return Text(TextFormat::Rights,
                "SELECT item, digit FROM user_right WHERE user = ? ORDER BY rowid", {user});
}

QByteArray Practice::Printers() {
    return Text(TextFormat::Printers,
                "SELECT id, 0, description, port FROM printer ORDER BY rowid");
}

QByteArray Practice::Settings(const QString& user) {
    return database_->Value("SELECT text FROM setting WHERE user = ?", {user}).toByteArray();
}

QByteArray Practice::Reminders(int patient) {
    QSqlQuery row = database_->Run(
        "SELECT tab, line FROM reminder WHERE patient = ? ORDER BY rowid", {patient});
    QList<QStringList> tabs;
    while (row.next()) {
        const QString tab = row.value(0).toString();
        if (tabs.empty() || tabs.back().first() != tab) tabs << QStringList{tab};
        tabs.back() << row.value(1).toString();
    }
    const bool hasAlert = Find(patient).value_or(Patient{}).hasAlert;
    return ServerText(TextFormat::Reminders, tabs, hasAlert ? u"\u00A31"_qs : QString());
}

QByteArray Practice::Time() {
    return Now().toString("MM/dd/yyyy, HH:mm:ss").toLatin1();
}

QByteArray Practice::List(const QString& table, bool byDescription) {
    const QString order = byDescription ? "description" : "code";
    const QString sql =
        "SELECT code, description, deleted FROM code WHERE code_table = ? ORDER BY " + order;
    QList<QStringList> list = ReadAll(database_->Run(sql, {table}), ReadTexts);
    list.prepend({"Code", "Description", "Deleted"});
    return ServerText(TextFormat::Selection, list);
}

QList<halvek::Color> Practice::Colors() {
    return ReadAll(database_->Run("SELECT value FROM color ORDER BY rowid"),
                   ReadOne<halvek::Color>);
}

QList<Reason> Practice::Reasons() {
    return ReadAll(database_->Run(QString(kReasons) + "ORDER BY rowid"), ReadReason);
}

Reason Practice::ReasonOf(const Visit& visit) {
    const QString sql = QString(kReasons) + "WHERE code = ?";
    return ReadAll(database_->Run(sql, {visit.reason}), ReadReason)
        .value(0, {visit.reason, visit.reason, {}, 0});
}

QStringList Practice::Providers() {
    return ReadAll(database_->Run("SELECT DISTINCT provider FROM visit ORDER BY provider"),
                   ReadOne<QString>);
}

QList<QTime> Practice::Times() {
    return ReadAll(database_->Run("SELECT DISTINCT time FROM visit ORDER BY time"), ReadOne<QTime>);
}

QList<Visit> Practice::Visits(const QDate& day) {
    const QString sql = QString(kVisits) + "WHERE day = ? ORDER BY time, provider";
    return ReadAll(database_->Run(sql, {day.toString(Qt::ISODate)}), ReadVisit);
}

QList<Visit> Practice::VisitsOf(int patient) {
    const QString sql = QString(kVisits) + "WHERE patient = ? ORDER BY day DESC, time DESC";
    return ReadAll(database_->Run(sql, {patient}), ReadVisit);
}

std::optional<Visit> Practice::VisitOfToday(int patient) {
    for (const Visit& visit : VisitsOf(patient)) {
        if (visit.day == Now().date() && visit.state != VisitState::Paid) return visit;
    }
    return std::nullopt;
}

std::optional<Patient> Practice::Find(int patient) {
    QSqlQuery row = database_->Run(QString(kPatients) + "WHERE number = ?", {patient});
    if (!row.next()) return std::nullopt;
    return ReadPatient(row);
}

QList<Patient> Practice::Search(const QString& text, int most) {
    const QString wanted = SearchText(text);
    QList<Patient> found;
    QSqlQuery rows = database_->Run(QString(kPatients) + "ORDER BY last, first");
    while (!wanted.isEmpty() && found.size() < most && rows.next()) {
        const Patient patient = ReadPatient(rows);
        const bool isWanted = SearchText(patient.Name()).startsWith(wanted) ||
                              SearchText(patient.first).startsWith(wanted) ||
                              QString::number(patient.number).startsWith(wanted);
        if (isWanted) found << patient;
    }
    return found;
}

QList<Payment> Practice::Payments(int patient) {
    QSqlQuery payments = database_->Run(
        "SELECT patient, posted, amount, adjustment, method, printer"
        " FROM payment WHERE patient = ? ORDER BY id DESC",
        {patient});
    return ReadAll(std::move(payments), ReadPayment);
}

QString Practice::Description(const QString& table, const QString& code) {
    return database_
        ->Value("SELECT description FROM code WHERE code_table = ? AND code = ?", {table, code})
        .toString();
}

qint64 Practice::CopayOf(const QString& insurance) {
    return database_
        ->Value("SELECT copay FROM code WHERE code_table = 'INS' AND code = ?", {insurance})
        .toLongLong();
}

bool Practice::CheckIn(const Arrival& arrival) {
    return Store([&] {
        database_->Run(
            "UPDATE visit SET provider = ?, procedures = ?, state = ? WHERE id = ?",
            {arrival.provider, arrival.procedures, int(VisitState::CheckedIn), arrival.visit});
        database_->Run(
            "UPDATE patient SET insurance = ?, balance = balance + ?"
            " WHERE number = (SELECT patient FROM visit WHERE id = ?)",
            {arrival.insurance, CopayOf(arrival.insurance), arrival.visit});
        if (arrival.next.isValid()) BookNext(arrival);
    });
}

// At the provider's first free start from the time of this visit on, or else before it
void Practice::BookNext(const Arrival& arrival) {
    const QString day = arrival.next.toString(Qt::ISODate);
    database_->Run(
        "INSERT INTO visit (day, time, patient, provider, reason, procedures, state)"
        " SELECT ?, start.time, patient, provider, 'FU', '', ?"
        " FROM visit AS today, (SELECT DISTINCT time FROM visit) AS start WHERE id = ?"
        " ORDER BY start.time IN"
        " (SELECT time FROM visit WHERE day = ? AND provider = today.provider),"
        " start.time < today.time, start.time LIMIT 1",
        {day, int(VisitState::Expected), arrival.visit, day});
}

bool Practice::Post(const Payment& payment) {
    const QDateTime now = Now();
    return Store([&] {
        database_->Run(
            "INSERT INTO payment (patient, posted, amount, adjustment, method, printer)"
            " VALUES (?, ?, ?, ?, ?, ?)",
            {payment.patient, now.toString(Qt::ISODate), payment.amount, payment.adjustment,
             payment.method, payment.printer});
        database_->Run("UPDATE patient SET balance = balance - ? + ? WHERE number = ?",
                       {payment.amount, payment.adjustment, payment.patient});
        database_->Run("UPDATE visit SET state = ? WHERE patient = ? AND day = ? AND state = ?",
                       {int(VisitState::Paid), payment.patient, now.date().toString(Qt::ISODate),
                        int(VisitState::CheckedIn)});
    });
}

bool Practice::CancelVisit(int visit) {
    return StoreOne("DELETE FROM visit WHERE id = ?", {visit});
}

bool Practice::SetReasonColor(const QString& code, halvek::Color color) {
    return StoreOne("UPDATE reason SET color = ? WHERE code = ?", {color, code});
}

bool Practice::SaveSettings(const QString& user, const QByteArray& settings) {
    return StoreOne("INSERT OR REPLACE INTO setting (user, text) VALUES (?, ?)", {user, settings});
}

bool Practice::StoreOne(const QString& sql, const QVariantList& values) {
    return Store([&] { database_->Run(sql, values); });
}

bool Practice::Store(const std::function<void()>& act) {
    return database_->Store([&] {
        act();
        database_->Run("UPDATE clock SET value = ?", {Now().toString(Qt::ISODate)});
    });
}

}  // namespace frontdesk
