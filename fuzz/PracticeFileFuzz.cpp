// SPDX-License-Identifier: MIT
#include "fuzz/DamagedFile.h"
#include "tests/TemporaryFolder.h"

#include <QCoreApplication>

#include <practice/Database.h>

using namespace halvek;
using frontdesk::Database;

namespace {

void FillPractice(const QString& path) {
    QString fault;
    const auto database = Database::Open(path, fault);
    const bool isMade = database->Store([&] {
        database->Run("CREATE TABLE patients (id INTEGER PRIMARY KEY, name TEXT UNIQUE)");
        for (int i = 0; i < 300; ++i) {
            const QString name = QString("Moss, Ada %1").arg(i);
            database->Run("INSERT INTO patients (name) VALUES (?)", {name});
        }
        for (const char* const mark : {"application_id=0x4644736B", "user_version=1"}) {
            database->Run(QString("PRAGMA ") + mark);
        }
    });
    Require(isMade, "the file is made");
}

}  // namespace

/// Opens a damaged or foreign file instead of a practice's.
void halvek::Check(FuzzedDataProvider& input) {
    static int count = 1;
    static char name[] = "PracticeFileFuzz";
    static char* names[] = {name, nullptr};
    static const QCoreApplication application(count, names);
    static const TemporaryFolder folder;
    static const QString path = QString::fromStdString(folder / "practice.db");
    static const std::string whole = [] {
        FillPractice(path);
        return ReadFile(path.toStdString());
    }();
    std::string bytes = whole;
    // Another program's mark, and a journal that opening it as a practice's would change
    if (input.ConsumeBool()) bytes.replace(68, 4, "ABCD").replace(18, 2, "\1\1");
    bytes = input.ConsumeBool() ? Damaged(bytes, input) : input.ConsumeRemainingBytesAsString();
    WriteFile(path.toStdString(), bytes);
    QString fault;
    if (const auto database = Database::Open(path, fault)) {
        QSqlQuery patients = database->Run("SELECT name FROM patients ORDER BY name");
        while (patients.next()) Require(patients.value(0).isValid(), "what is opened is readable");
    } else {
        Require(fault.startsWith(path), "the message names the file");
        Require(ReadFile(path.toStdString()) == bytes, "the file is left as it is");
    }
    for (const char* const beside : {"practice.db-wal", "practice.db-shm"}) {
        std::filesystem::remove(folder / beside);
    }
}
