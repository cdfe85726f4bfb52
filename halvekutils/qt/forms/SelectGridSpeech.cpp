// SPDX-License-Identifier: MIT
#include <halvekutils/qt/QtText.h>
#include <halvekutils/qt/forms/SelectGridSpeech.h>
#include <halvekutils/selection/SelectGrid.h>

#include <QCoreApplication>
#include <QStringList>

namespace halvek {

namespace {

QString Tr(const char* text) {
    return QCoreApplication::translate("SelectGridView", text);
}

}  // namespace

SpokenEntry SpokenEntryOf(const SelectGrid& rules) {
    const CellPlace check = rules.CurrentCell();
    const bool isDeleted = rules.Cell(check.row + 1, check.column).IsStruckOut();
    return {.number = rules.CurrentEntry(),
            .name = ToQString(rules.AccessibleText(check.row, check.column)),
            .checked = rules.Cell(check.row, check.column).checked,
            .remark = isDeleted ? Tr("deleted") : QString()};
}

QString SpokenTextOf(const SelectGrid& rules) {
    const SpokenEntry entry = SpokenEntryOf(rules);
    QStringList parts = {entry.name, *entry.checked ? Tr("checked") : Tr("not checked")};
    if (!entry.remark.isEmpty()) parts += entry.remark;
    return parts.join(QLatin1String(", "));
}

}  // namespace halvek
