// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Internal.h>
#include <halvekutils/platform/Desktop.h>
#include <halvekutils/platform/Geometry.h>

#include <cstdint>
#include <string_view>
#include <vector>

namespace halvek {

/// The sizes and places of a selection dialog's parts, in twips.
struct SelectGridLayout {
    Size form;   ///< with the window's frame
    Size inner;  ///< without it
    Rect box;    ///< txtSelect
    Rect grid;   ///< grdSelection, with its border and scroll bars
    Rect ok;     ///< cmdOK
    Rect exit;   ///< cmdExit
    Rect find;   ///< the bar that finds entries, beside the buttons
    std::int32_t columnWidth = 0;
    std::int32_t headerHeight = 0;       ///< of row 0
    std::int32_t codeHeight = 0;         ///< of a check row and a code row
    std::int32_t descriptionHeight = 0;  ///< of a description row
    std::int32_t bandsOnPage = 1;        ///< how many bands show whole at a time, at least 1
    bool scrollsDown = false;            ///< the grid holds more bands than it shows
    bool scrollsAcross = false;          ///< the screen is too narrow for ten readable columns
};

/// What a selection dialog's layout depends on besides the text meter.
struct SelectGridContent {
    std::int32_t longestCodeLength = 0;
    std::int32_t rowCount = 0;  ///< of the grid, without the header
    std::int32_t columns = 10;  ///< how many of them the grid shows
    std::vector<std::u16string_view> longestDescriptions = {};
    std::int32_t findBarWidth = 0;  ///< the least width of the bar that finds entries
    std::int32_t scrollBarWidth = 270;
    std::int32_t gridBorder = 15;  ///< the width of the grid's own border on each side
};

/// The font of the box and the buttons: the desktop's own size.
inline FontSpec SelectControlFont() {
    return {u"Tahoma", 0};
}

/// Lays out a selection dialog on a screen, for a window frame that adds `frame` to its inner size.
///
/// Columns are as wide as the widest description and the longest code, and at least as wide as the
/// description of the pseudo-entry. All of them fit on the screen: longer texts are cut off. If
/// fewer than eight characters of a code would show, the grid scrolls across instead. The grid
/// shows whole bands, all of them when the screen has room. The bar that finds entries has its room
/// beside the buttons, so nothing moves when it opens.
HALVEK_INTERNAL SelectGridLayout LayOutSelectGrid(const SelectGridContent& content,
                                                  const TextMeter& meter, Size screen, Size frame);

}  // namespace halvek
