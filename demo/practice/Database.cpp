// SPDX-License-Identifier: MIT
#include "practice/Database.h"

#include <QSqlError>

#include <utility>

namespace frontdesk {

namespace {

// What marks a file as a practice's, "FDsk", and the layout of its tables; sample.sql sets both.
constexpr int kApplication = 0x4644736B;
constexpr int kLayout = 1;

// SQLite's number for a file that does not begin as its own do
constexpr char kNotADatabase[] = "26";

// FULL: a payment that the desk has confirmed survives a power cut too, not only a crash.
constexpr const char* kPragmas[] = {"PRAGMA journal_mode=WAL", "PRAGMA synchronous=FULL",
                                    "PRAGMA foreign_keys=ON"};

QString ReasonOf(const QSqlError& error) {
    return error.text().trimmed() + '.';
}

}  // namespace

Database::Database(QString connection) : connection_(std::move(connection)) {}

Database::~Database() {
    QSqlDatabase::database(connection_, false).close();
    QSqlDatabase::removeDatabase(connection_);
}

std::unique_ptr<Database> Database::Open(const QString& path, QString& fault) {
    static int opened = 0;
    const QString connection = QString("practice-%1").arg(++opened);
    std::unique_ptr<Database> database(new Database(connection));
    auto file = QSqlDatabase::addDatabase("QSQLITE", connection);
    file.setDatabaseName(path);
    file.setConnectOptions("QSQLITE_BUSY_TIMEOUT=5000");
    fault =
        file.open() ? database->FaultOfFile() : "cannot be opened: " + ReasonOf(file.lastError());
    if (fault.isEmpty()) return database;
    fault.prepend(path + ' ');
    return nullptr;
}

QString Database::FaultOfFile() {
    QSqlQuery check = Run("PRAGMA quick_check(1)");
    const QString result = check.next() ? check.value(0).toString() : ReasonOf(check.lastError());
    if (check.lastError().nativeErrorCode() == kNotADatabase) {
        return "is not the file of a practice, or its beginning is damaged.";
    }
    if (result != "ok") return "is damaged: " + result;
    check.finish();
    if (!IsEmpty()) {
        if (Value("PRAGMA application_id") != kApplication) return "belongs to another program.";
        if (Value("PRAGMA user_version") != kLayout) {
            return "was made by another version of Front Desk.";
        }
    }
    for (const char* pragma : kPragmas) {
        const QSqlQuery set = Run(pragma);
        if (failed_) return "cannot be written: " + ReasonOf(set.lastError());
    }
    return {};
}

QSqlQuery Database::Run(const QString& sql, const QVariantList& values) {
    QSqlQuery query(QSqlDatabase::database(connection_));
    query.setForwardOnly(true);
    const bool isPrepared = query.prepare(sql);
    for (const QVariant& value : values) query.addBindValue(value);
    if (isPrepared && query.exec()) return query;
    failed_ = true;
    if (report_) report_(query.lastError().text().trimmed());
    return query;
}

QVariant Database::Value(const QString& sql, const QVariantList& values) {
    QSqlQuery row = Run(sql, values);
    return row.next() ? row.value(0) : QVariant();
}

bool Database::Store(const std::function<void()>& act) {
    failed_ = false;
    Run("BEGIN IMMEDIATE");
    if (!failed_) act();
    if (!failed_) Run("COMMIT");
    if (failed_) QSqlDatabase::database(connection_).rollback();
    return !failed_;
}

}  // namespace frontdesk
