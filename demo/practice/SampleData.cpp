// SPDX-License-Identifier: MIT
#include "practice/SampleData.h"

#include "practice/SearchText.h"

#include <QFile>

namespace frontdesk {

namespace {

void FillSearchTexts(Database& database) {
    QSqlQuery fill =
        database.Prepared("UPDATE patient SET search = ?, first_search = ? WHERE number = ?");
    QSqlQuery patient = database.Run("SELECT number, last, first FROM patient");
    while (patient.next()) {
        const QString first = SearchText(patient.value(2).toString());
        const QString name = SearchText(patient.value(1).toString()) + ", " + first;
        database.RunAgain(fill, {name, first, patient.value(0)});
    }
}

}  // namespace

bool MakeSamplePractice(Database& database, QString& fault) {
    QFile script(":/practice/sample.sql");
    if (!script.open(QIODevice::ReadOnly)) return false;
    database.OnFault([&](const QString& reason) {
        if (fault.isEmpty()) fault = reason;
    });
    Transaction whole(database);
    for (const QString& statement : QString::fromUtf8(script.readAll()).split(";\n")) {
        if (!statement.trimmed().isEmpty()) database.Run(statement);
    }
    FillSearchTexts(database);
    const bool made = whole.Commit();
    database.OnFault({});
    return made;
}

}  // namespace frontdesk
