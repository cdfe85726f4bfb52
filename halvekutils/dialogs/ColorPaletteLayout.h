// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Internal.h>
#include <halvekutils/platform/Geometry.h>

#include <cstdint>

namespace halvek {

/// The sizes and places of a palette's parts, in twips.
struct ColorPaletteLayout {
    Size form;             ///< with the window's frame
    Size inner;            ///< without it
    Rect frame;            ///< Frame2, in the form
    Rect name;             ///< the line that names the current cell, in the form
    int rowsOnPage = 1;    ///< the rows of cells that are in view
    bool scrolls = false;  ///< whether there are more rows than are in view
};

/// Lays out a palette with a line of text below its rows on a screen, for a window frame that adds
/// `frame` to its inner size. Rows that do not fit scroll.
HALVEK_INTERNAL ColorPaletteLayout LayOutColorPalette(int rows, std::int32_t scrollBarWidth,
                                                      std::int32_t lineHeight, Size screen,
                                                      Size frame);

/// Where a cell, numbered from 1, lies in Frame2 before scrolling.
HALVEK_INTERNAL Rect PaletteCellPlace(int cell);

/// The row, from 0, that lies at a height in Frame2 before scrolling.
HALVEK_INTERNAL int PaletteRowAt(std::int32_t top);

/// The height that rows of cells take in Frame2.
HALVEK_INTERNAL std::int32_t PaletteHeight(int rows);

}  // namespace halvek
