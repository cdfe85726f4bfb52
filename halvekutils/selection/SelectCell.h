// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Color.h>
#include <halvekutils/base/Export.h>
#include <halvekutils/platform/Desktop.h>
#include <halvekutils/selection/SelectionList.h>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace halvek {

/// The description of the entry for all codes.
inline constexpr std::u16string_view kAllCodesName = u" *** ALL CODES *** ";

/// The colour of a deleted entry.
inline constexpr Color kDeletedText = Rgb(255, 0, 0);

/// The font of the check and code rows.
inline FontSpec CodeFont() {
    return {u"tahoma", 8};
}
/// The font of the description rows.
inline FontSpec DescriptionFont() {
    return {u"tahoma", 7};
}

/// One cell of the grid as it is drawn.
struct SelectCell {
    /// What a cell is.
    enum class Kind {
        Header,       ///< row 0: the list's name and the choice
        Check,        ///< the tick of an entry
        Code,         ///< the code of an entry
        Description,  ///< the description of an entry
        Plain,        ///< nothing
    };
    /// Where the text is in the cell.
    enum class Alignment {
        Left = 0,    ///< at the left edge
        Centre = 1,  ///< in the middle
    };

    Kind kind = Kind::Plain;          ///< what the cell is
    std::u16string text;              ///< plain text; a header's may be as long as the whole choice
    bool checked = false;             ///< of a Check cell
    std::u16string toolTip;           ///< empty for none
    std::optional<Color> background;  ///< nothing for the desktop's own
    std::optional<Color> textColor;   ///< nothing for the desktop's own
    Alignment alignment = Alignment::Left;  ///< where the text is
    FontSpec font;                          ///< of the text

    /// Whether the text is struck out: not everybody can see a deleted entry's colour.
    bool IsStruckOut() const { return textColor == kDeletedText; }
};

/// A cell of the grid: row 0 is the header, columns run from 1 to 10.
struct CellPlace {
    std::int32_t row = 0;     ///< 0 for the header
    std::int32_t column = 0;  ///< 1 to 10

    friend bool operator==(const CellPlace&, const CellPlace&) = default;
};

/// The band of an entry, counted from 0.
constexpr std::int32_t BandOf(std::int32_t entry) {
    return (entry - 1) / SelectionList::kColumns;
}
/// The column of an entry, 1 to 10.
constexpr std::int32_t ColumnOf(std::int32_t entry) {
    return (entry - 1) % SelectionList::kColumns + 1;
}

/// The check cell of an entry; row and column 0 for entry 0.
HALVEK_EXPORT CellPlace CheckCellOf(std::int32_t entry);
/// The entry of a cell; 0 in the header, past the last entry and outside the grid.
HALVEK_EXPORT std::int32_t EntryAt(const SelectionList& list, CellPlace place);

/// Row 0 with this text.
HALVEK_EXPORT SelectCell HeaderCell(std::u16string text);
/// Any other cell, of an entry that is ticked or not; a plain one outside the grid.
HALVEK_EXPORT SelectCell EntryCell(const SelectionList& list, CellPlace place, bool ticked);

/// What screen readers call an entry: code and description; empty for an entry without a code.
HALVEK_EXPORT std::u16string AccessibleText(const SelectionList& list, std::int32_t entry);

}  // namespace halvek
