// SPDX-License-Identifier: MIT
#include "pages/SelectionSamples.h"

#include <QHash>
#include <QStringList>

namespace frontdesk {

namespace {

constexpr int kPatients = 100'000;
constexpr int kChosenStep = 10;
const QString kHeader = QStringLiteral("Code\tDescription\tDeleted:");

QString PatientCode(int number) {
    return QString("P%1").arg(number, 6, 10, QChar('0'));
}

QString PatientList() {
    static const char* const names[] = {"Adams", "Baker", "Clark", "Duarte", "Ellis",
                                        "Fuchs", "Grant", "Huang", "Ito"};
    QString list = kHeader;
    for (int i = 1; i <= kPatients; ++i) {
        const QString name = QString("%1, %2").arg(names[i % 9]).arg(QChar('A' + i % 26));
        list += PatientCode(i) + '\t' + name + '\t' + (i % 50 == 0 ? '1' : '0') + ':';
    }
    return list;
}

QString EveryTenthPatient() {
    QStringList codes;
    for (int i = kChosenStep; i <= kPatients; i += kChosenStep) codes << PatientCode(i);
    return codes.join(',');
}

/// What the first visit of the day holds of each list.
const QHash<QString, QString>& ChosenCodes() {
    static const QHash<QString, QString> codes{
        {"Insurance Types", "MB,MG"},
        {"Providers", "CAS,OST"},
        {"Locations", "NC"},
        {"Places of Service", "11"},
        {"Authorizations", "AUTH-2004-000117-NORTH"},
    };
    return codes;
}

}  // namespace

std::vector<SelectionSample> SelectionSamples(const SampleData& data) {
    std::vector<SelectionSample> samples;
    for (const SelectionSource& list : data.Selections()) {
        samples.push_back({list.name, {list.name, list.values, ChosenCodes().value(list.name)}});
    }
    samples.push_back({"100,000 patients", HugeSelection()});
    samples.push_back({"A list without entries", {"Recall Reasons", kHeader, ""}});
    samples.push_back({"Nothing from the server", {"Modifiers", "", "25,59"}});
    return samples;
}

QString AllCodes(const QString& allValues) {
    QStringList codes;
    for (const QString& entry : allValues.split(':', Qt::SkipEmptyParts).sliced(1)) {
        codes << entry.section('\t', 0, 0);
    }
    return codes.join(',');
}

SelectionArguments HugeSelection() {
    return {"Patients", PatientList(), EveryTenthPatient()};
}

}  // namespace frontdesk
