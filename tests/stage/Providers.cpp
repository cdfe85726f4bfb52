// SPDX-License-Identifier: MIT
#include "Providers.h"

#include <QSet>
#include <QStringList>

namespace {

constexpr const char* kFamilies[] = {
    "Abernathy",  "Adams",     "Allen",    "Álvarez",   "Anderson", "Bailey",  "Baker",   "Brown",
    "Campbell",   "Carter",    "Chen",     "Clark",     "Cohen",    "Cooper",  "Davis",   "Diaz",
    "Edwards",    "Evans",     "Flores",   "Garcia",    "Gonzalez", "Gray",    "Green",   "Hall",
    "Harris",     "Hernandez", "Hill",     "Howard",    "Ivanov",   "Jackson", "Johnson", "Jones",
    "Kelly",      "Kim",       "King",     "Lee",       "Lewis",    "Lopez",   "Martin",  "Miller",
    "Montgomery", "Moore",     "Müller",   "Nelson",    "Nguyen",   "O'Brien", "Ortiz",   "Parker",
    "Patel",      "Perez",     "Reed",     "Rodriguez", "Scott",    "Smith",   "Taylor",  "Torres",
    "Walker",     "Watson",    "Williams", "Young"};
constexpr const char* kGiven[] = {"Grace",     "Sam",       "Maria", "Christopher", "Ruth",
                                  "Daniel",    "Elizabeth", "Omar",  "Jennifer",    "Lee",
                                  "Alexander", "Priya",     "René",  "Margaret"};
constexpr int kGivenOfEach[] = {0, 1, 3, 6, 10};  // how far on in the list of given names

/// The letters of a name that a code may hold, as capitals.
QString CodeLetters(const QString& name) {
    QString letters;
    for (const QChar letter : name.normalized(QString::NormalizationForm_D).toUpper()) {
        if (letter >= u'A' && letter <= u'Z') letters += letter;
    }
    return letters;
}

QStringList Names() {
    QStringList names;
    for (int i = 0; i < static_cast<int>(std::size(kFamilies)); ++i) {
        QStringList family;
        for (const int further : kGivenOfEach) {
            const auto given = static_cast<std::size_t>(3 * i + 10 + further) % std::size(kGiven);
            family += QString("%1, %2").arg(kFamilies[i], kGiven[given]);
        }
        family.sort();
        names += family;
    }
    return names;
}

}  // namespace

QString ProviderList() {
    QString list = "Code\tName\tDeleted";
    QSet<QString> codes;
    for (const QString& name : Names()) {
        QString code = CodeLetters(name.section(", ", 0, 0)).left(4) +
                       CodeLetters(name.section(", ", 1)).left(1);
        while (codes.contains(code)) code += '2';
        codes += code;
        list += ':' + code + '\t' + name + "\t0";
    }
    return list + ':';
}

QString InsuranceList() {
    return "Code\tName\tDeleted:MC\tMedicare\t0:BL\tBlue Shield\t0:OLD\tPlan of 1999\t1:";
}
