// SPDX-License-Identifier: MIT
#include <halvekutils/base/Characters.h>
#include <halvekutils/base/NumericText.h>
#include <halvekutils/selection/SelectCell.h>

#include <utility>

namespace halvek {

namespace {

constexpr Color kHeaderBackground = Rgb(250, 212, 135);
constexpr Color kDescriptionBackground = Rgb(235, 235, 235);
constexpr Color kAllCodesText = Rgb(0, 0, 255);

std::u16string ToolTipOf(std::u16string_view text) {
    return text.empty() ? std::u16string() : u' ' + std::u16string(text) + u' ';
}

bool IsInGrid(const SelectionList& list, CellPlace place) {
    return place.row >= 1 && place.row <= list.RowCount() && place.column >= 1 &&
           place.column <= SelectionList::kColumns;
}

void FillInCheck(SelectCell& cell, const SelectionList& list, std::int32_t entry, bool ticked) {
    if (entry == 0 || !list.HasCode(entry)) {
        cell.kind = SelectCell::Kind::Plain;
        return;
    }
    cell.checked = ticked;
    cell.toolTip = ticked ? u" SELECTED " : u" NOT SELECTED ";
}

void FillInText(SelectCell& cell, const SelectionList& list, std::int32_t entry) {
    if (entry == 0) return;
    const bool isCode = cell.kind == SelectCell::Kind::Code;
    cell.text = isCode ? list.Code(entry) : list.Description(entry);
    cell.toolTip = ToolTipOf(cell.text);
    if (entry == SelectionList::kAllCodes) {
        cell.textColor = kAllCodesText;
        cell.alignment = SelectCell::Alignment::Centre;
    } else if (list.IsDeleted(entry)) {
        cell.textColor = kDeletedText;
    }
}

}  // namespace

CellPlace CheckCellOf(std::int32_t entry) {
    if (entry < 1) return {};
    return {BandOf(entry) * SelectionList::kRowsPerBand + 1, ColumnOf(entry)};
}

std::int32_t EntryAt(const SelectionList& list, CellPlace place) {
    if (!IsInGrid(list, place)) return 0;
    const std::int32_t entry =
        (place.row - 1) / SelectionList::kRowsPerBand * SelectionList::kColumns + place.column;
    return entry <= list.LastShown() ? entry : 0;
}

SelectCell HeaderCell(std::u16string text) {
    SelectCell cell;
    cell.font = CodeFont();
    cell.kind = SelectCell::Kind::Header;
    cell.text = std::move(text);
    cell.background = kHeaderBackground;
    cell.alignment = SelectCell::Alignment::Centre;
    return cell;
}

SelectCell EntryCell(const SelectionList& list, CellPlace place, bool ticked) {
    constexpr SelectCell::Kind kKinds[] = {SelectCell::Kind::Check, SelectCell::Kind::Code,
                                           SelectCell::Kind::Description};
    SelectCell cell;
    cell.font = CodeFont();
    if (!IsInGrid(list, place)) return cell;
    cell.kind = kKinds[(place.row - 1) % SelectionList::kRowsPerBand];
    if (cell.kind == SelectCell::Kind::Description) {
        cell.font = DescriptionFont();
        cell.background = kDescriptionBackground;
    }
    const std::int32_t entry = EntryAt(list, place);
    if (cell.kind == SelectCell::Kind::Check) {
        FillInCheck(cell, list, entry, ticked);
    } else {
        FillInText(cell, list, entry);
    }
    return cell;
}

std::u16string AccessibleText(const SelectionList& list, std::int32_t entry) {
    if (entry == 0 || !list.HasCode(entry)) return {};
    std::u16string text(Trimmed(list.Code(entry)));
    if (const TextIn name = Trimmed(list.Description(entry)); !name.empty()) {
        if (!text.empty()) text += u", ";
        text += name;
    }
    return text;
}

}  // namespace halvek
