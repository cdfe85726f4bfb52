// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Color.h>
#include <halvekutils/base/Export.h>
#include <halvekutils/base/StringArray.h>
#include <halvekutils/controls/Placement.h>
#include <halvekutils/platform/Dialog.h>

#include <cstdint>
#include <string>
#include <vector>

namespace halvek {

class Services;

/// The log's prefix for whatever goes wrong with a palette.
inline constexpr char16_t kPaletteFault[] = u"Error in Utils.ShowColor ";

/// A colour that a palette shows.
struct PaletteCell {
    Color color = 0;         ///< as the list has it
    std::int32_t index = 0;  ///< of its entry in the colour list

    friend bool operator==(const PaletteCell&, const PaletteCell&) = default;
};

/// The rules of one colour palette, without a window: which colours it shows, where its keys lead
/// and what it returns. A window draws it and forwards its events.
///
/// The result is the chosen colour, a tab and its index in the list, as in "255<TAB>7".
class HALVEK_EXPORT ColorPalette : public Dialog {
  public:
    /// The title bar's text.
    static constexpr char16_t kCaption[] = u"Color Palette";
    /// How many cells a row has.
    static constexpr int kColumns = 6;

    /// Shows entry 1 of the list, then every entry above -1 from the second to the last but two;
    /// the others are unused slots.
    ///
    /// An entry that is not a number is black. From entry 2 on, a number beyond 32 bits is logged
    /// and left out. Throws SubscriptOutOfRange when there is no entry 1, Overflow when entry 1 is
    /// beyond 32 bits.
    ColorPalette(const StringArray& colors, const PopupAnchor& anchor, Services& session);
    ~ColorPalette() override;

    // What the window shows. Cells are numbered from 1, in rows of six.

    /// All cells in their order; cell 1 is the element 0.
    const std::vector<PaletteCell>& Cells() const { return cells_; }
    /// How many cells there are, at least 1.
    int CellCount() const { return static_cast<int>(cells_.size()); }
    /// How many rows there are, the last of which may be short.
    int RowCount() const { return (CellCount() + kColumns - 1) / kColumns; }

    /// The cell that the keys have moved to.
    int Current() const { return current_; }

    /// What a tool tip and a screen reader say of a cell: "light pink, 8 (#FFB6C1)".
    std::u16string CellName(int cell) const;

    /// Where the palette is asked to open.
    const PopupAnchor& Anchor() const { return anchor_; }

    // What the user does

    /// Clicks a cell: the palette ends with its colour. Throws SubscriptOutOfRange for a cell that
    /// does not exist.
    void Click(int cell);

    /// The keys that the palette knows.
    enum class Key {
        Enter,     ///< chooses the current cell
        Space,     ///< chooses the current cell
        Escape,    ///< ends without a choice
        Left,      ///< the cell before, in its row and in the row above
        Right,     ///< the cell after, in its row and in the row below
        Up,        ///< the row above
        Down,      ///< the row below
        PageUp,    ///< as many rows up as are in view
        PageDown,  ///< as many rows down as are in view
        Home,      ///< the first cell
        End,       ///< the last cell
        Next,      ///< Tab: the cell after, and from the last one to the first
        Previous,  ///< Shift+Tab: the cell before, and from the first one to the last
    };
    /// A key pressed while `rowsOnPage` rows are in view.
    void KeyDown(Key key, int rowsOnPage = 1);

  private:
    const PaletteCell& CellAt(int cell) const;
    int Moved(Key key, int rowsOnPage) const;
    int MovedDown(int rows) const;

    PopupAnchor anchor_;
    Services& session_;
    std::vector<PaletteCell> cells_;
    int current_ = 1;
};

}  // namespace halvek
