// SPDX-License-Identifier: MIT
#pragma once

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QString>
#include <QVariantList>

#include <functional>
#include <memory>

namespace frontdesk {

/// The practice's SQLite file. Statements never throw: one that fails is reported, and the
/// transaction around it cannot be committed.
class Database {
  public:
    /// Opens a file and makes it if it is missing; ":memory:" keeps everything in memory.
    ///
    /// @param fault  why the file cannot be used, as a sentence for the user: it is damaged, or
    ///     belongs to another program. The file is then left as it is.
    /// @return null when there is a fault
    static std::unique_ptr<Database> Open(const QString& path, QString& fault);

    ~Database();
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;

    /// True for a file without any tables.
    bool IsEmpty() const;

    /// Runs a statement with the values for its question marks.
    QSqlQuery Run(const QString& sql, const QVariantList& values = {});
    /// Runs a prepared statement again, with other values.
    bool RunAgain(QSqlQuery& query, const QVariantList& values);

    /// A statement to run with RunAgain.
    QSqlQuery Prepared(const QString& sql);

    /// Is called with the reason whenever a statement fails.
    void OnFault(std::function<void(const QString& fault)> report) { report_ = std::move(report); }

  private:
    friend class Transaction;

    explicit Database(QString connection);
    QString FaultOfFile();
    void Report(const QString& fault);

    QString connection_;
    bool failed_ = false;
    std::function<void(const QString& fault)> report_;
};

/// All that is written until Commit is stored together, or not at all.
class Transaction {
  public:
    explicit Transaction(Database& database);
    /// Undoes what was not committed.
    ~Transaction();
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;

    /// True once all is on the disk; false, with nothing stored, when a statement failed.
    bool Commit();

  private:
    Database& database_;
    bool open_ = true;
};

}  // namespace frontdesk
