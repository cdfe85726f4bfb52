// SPDX-License-Identifier: MIT
#include "practice/Database.h"

#include <QFile>
#include <QFileInfo>
#include <QSqlError>

#include <utility>

namespace frontdesk {

namespace {

constexpr char kMemory[] = ":memory:";
// The start of every SQLite file
constexpr char kMagic[] = "SQLite format 3";
// What marks a file as a practice's, "FDsk", and the layout of its tables
constexpr int kApplication = 0x4644736B;
constexpr int kLayout = 1;

QString FaultOfHeader(const QString& path) {
    if (path == kMemory) return {};
    QFile file(path);
    if (!file.exists() || file.size() == 0) return {};
    if (!QFileInfo(file).isFile() || !file.open(QIODevice::ReadOnly)) {
        return path + " cannot be opened: " + file.errorString() + '.';
    }
    if (file.read(sizeof kMagic) != QByteArray(kMagic, sizeof kMagic)) {
        return path + " is not the file of a practice, or its beginning is damaged.";
    }
    return {};
}

QString Connect(const QString& connection, const QString& path) {
    auto file = QSqlDatabase::addDatabase("QSQLITE", connection);
    file.setDatabaseName(path);
    file.setConnectOptions("QSQLITE_BUSY_TIMEOUT=5000");
    if (file.open()) return {};
    return path + " cannot be opened: " + file.lastError().text() + '.';
}

// FULL: a payment that the desk has confirmed survives a power cut too, not only a crash.
constexpr const char* kPragmas[] = {"PRAGMA journal_mode=WAL", "PRAGMA synchronous=FULL",
                                    "PRAGMA foreign_keys=ON"};

}  // namespace

Database::Database(QString connection) : connection_(std::move(connection)) {}

Database::~Database() {
    QSqlDatabase::database(connection_, false).close();
    QSqlDatabase::removeDatabase(connection_);
}

std::unique_ptr<Database> Database::Open(const QString& path, QString& fault) {
    fault = FaultOfHeader(path);
    if (!fault.isEmpty()) return nullptr;
    static int opened = 0;
    const QString connection = QString("practice-%1").arg(++opened);
    std::unique_ptr<Database> database(new Database(connection));
    fault = Connect(connection, path);
    if (!fault.isEmpty()) return nullptr;
    const QString faultOfFile = database->FaultOfFile();
    if (!faultOfFile.isEmpty()) fault = path + ' ' + faultOfFile;
    return fault.isEmpty() ? std::move(database) : nullptr;
}

QString Database::FaultOfFile() {
    QString fault;
    OnFault([&](const QString& reason) { fault = "is damaged: " + reason + '.'; });
    QSqlQuery check = Run("PRAGMA quick_check(1)");
    if (fault.isEmpty() && check.next() && check.value(0).toString() != "ok") {
        fault = "is damaged: " + check.value(0).toString() + '.';
    }
    check.finish();
    if (fault.isEmpty() && !IsEmpty()) {
        QSqlQuery mark =
            Run("SELECT (SELECT application_id FROM pragma_application_id),"
                " (SELECT user_version FROM pragma_user_version)");
        mark.next();
        if (mark.value(0).toInt() != kApplication) {
            fault = "belongs to another program.";
        } else if (mark.value(1).toInt() != kLayout) {
            fault = "was made by another version of Front Desk.";
        }
    }
    for (const char* pragma : kPragmas) {
        if (fault.isEmpty()) Run(pragma);
    }
    OnFault({});
    return fault;
}

bool Database::IsEmpty() const {
    QSqlQuery tables("SELECT count(*) FROM sqlite_master", QSqlDatabase::database(connection_));
    return tables.next() && tables.value(0).toInt() == 0;
}

QSqlQuery Database::Run(const QString& sql, const QVariantList& values) {
    QSqlQuery query = Prepared(sql);
    RunAgain(query, values);
    return query;
}

QSqlQuery Database::Prepared(const QString& sql) {
    QSqlQuery query(QSqlDatabase::database(connection_));
    query.setForwardOnly(true);
    if (!query.prepare(sql)) Report(query.lastError().text());
    return query;
}

bool Database::RunAgain(QSqlQuery& query, const QVariantList& values) {
    for (qsizetype i = 0; i < values.size(); ++i) {
        query.bindValue(static_cast<int>(i), values[i]);
    }
    if (query.exec()) return true;
    Report(query.lastError().text());
    return false;
}

void Database::Report(const QString& fault) {
    failed_ = true;
    if (report_) report_(fault.trimmed());
}

Transaction::Transaction(Database& database) : database_(database) {
    database_.failed_ = false;
    database_.Run("BEGIN IMMEDIATE");
    // With the first tables; repeated later it changes nothing
    if (!database_.failed_ && database_.IsEmpty()) {
        database_.Run(QString("PRAGMA application_id=%1").arg(kApplication));
        database_.Run(QString("PRAGMA user_version=%1").arg(kLayout));
    }
}

Transaction::~Transaction() {
    if (open_) database_.Run("ROLLBACK");
}

bool Transaction::Commit() {
    if (database_.failed_ || !open_) return false;
    database_.Run("COMMIT");
    open_ = database_.failed_;
    return !open_;
}

}  // namespace frontdesk
