// SPDX-License-Identifier: MIT
#include <halvekutils/qt/QtText.h>
#include <halvekutils/qt/forms/SelectGridSpeech.h>
#include <halvekutils/selection/SelectGrid.h>

#include <QCoreApplication>

namespace halvek {

SpokenEntry SpokenEntryOf(const SelectGrid& rules) {
    const CellPlace check = rules.CurrentCell();
    const bool isDeleted = rules.Cell(check.row + 1, check.column).IsStruckOut();
    return {
        .number = rules.CurrentEntry(),
        .name = ToQString(rules.AccessibleText(check.row, check.column)),
        .checked = rules.Cell(check.row, check.column).checked,
        .remark = isDeleted ? QCoreApplication::translate("SelectGridView", "deleted") : QString()};
}

}  // namespace halvek
