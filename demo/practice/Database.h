// SPDX-License-Identifier: MIT
#pragma once

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QString>
#include <QVariantList>

#include <functional>
#include <memory>

namespace frontdesk {

/// The practice's SQLite file. Statements never throw: one that fails is reported, and the act that
/// it belongs to is undone.
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
    bool IsEmpty() { return Value("SELECT count(*) FROM sqlite_master") == 0; }

    /// Runs a statement with the values for its question marks.
    QSqlQuery Run(const QString& sql, const QVariantList& values = {});

    /// The first value that a statement gives; an invalid one for none.
    QVariant Value(const QString& sql, const QVariantList& values = {});

    /// Stores all that an act writes together: true once it is on the disk; false, with nothing
    /// stored, when a statement failed.
    bool Store(const std::function<void()>& act);

    /// Is called with the reason whenever a statement fails.
    void OnFault(std::function<void(const QString& fault)> report) { report_ = std::move(report); }

  private:
    explicit Database(QString connection);
    QString FaultOfFile();

    QString connection_;
    bool failed_ = false;
    std::function<void(const QString& fault)> report_;
};

}  // namespace frontdesk
