// SPDX-License-Identifier: MIT
#include <halvekutils/dialogs/ColorPalette.h>
#include <halvekutils/dialogs/ColorPaletteLayout.h>
#include <halvekutils/platform/Twips.h>

#include <algorithm>

namespace halvek {

namespace {

constexpr Size kCell = {600, 600};
constexpr std::int32_t kFrameBorder = 50;
constexpr std::int32_t kFrameBorders = 2 * kFrameBorder;
// A cell has room around its swatch, which adds up to the other windows' margin.
constexpr std::int32_t kMargin = 90;

}  // namespace

Rect PaletteCellPlace(int cell) {
    const int position = cell - 1;
    const int column = position % ColorPalette::kColumns;
    const std::int64_t row = position / ColorPalette::kColumns;
    return {column * kCell.width + kFrameBorder, LimitedTwips(row * kCell.height + kFrameBorder),
            kCell.width, kCell.height};
}

int PaletteRowAt(std::int32_t top) {
    return std::max(top - kFrameBorder, 0) / kCell.height;
}

std::int32_t PaletteHeight(int rows) {
    return LimitedTwips(std::int64_t{rows} * kCell.height + kFrameBorders);
}

ColorPaletteLayout LayOutColorPalette(int rows, std::int32_t scrollBarWidth,
                                      std::int32_t lineHeight, Size screen, Size frame) {
    ColorPaletteLayout layout;
    const std::int32_t space =
        screen.height - frame.height - lineHeight - 3 * kMargin - kFrameBorders;
    layout.rowsOnPage = std::clamp(space / kCell.height, 1, std::max(rows, 1));
    layout.scrolls = rows > layout.rowsOnPage;
    layout.frame = {kMargin, kMargin,
                    ColorPalette::kColumns * kCell.width + kFrameBorders +
                        (layout.scrolls ? scrollBarWidth : 0),
                    PaletteHeight(layout.rowsOnPage)};
    const std::int32_t side = kMargin + kFrameBorder;
    layout.name = {side, layout.frame.Bottom() + kMargin / 2, layout.frame.Right() - side,
                   lineHeight};
    layout.inner = {layout.frame.Right() + kMargin, layout.name.Bottom() + kMargin};
    layout.form = {layout.inner.width + frame.width, layout.inner.height + frame.height};
    return layout;
}

}  // namespace halvek
