// SPDX-License-Identifier: MIT
#include "fuzz/FuzzText.h"
#include "tests/FakeServices.h"

#include <halvekutils/base/NumericText.h>
#include <halvekutils/dialogs/ColorPalette.h>

#include <cmath>
#include <limits>

using namespace halvek;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzedDataProvider input(data, size);
    const StringArray colors(input.ConsumeIntegralInRange(0, 1),
                             Cut(Narrowed(FuzzText(input, 100), u"||-0159. e"), u'|'));
    FakeServices services;
    std::vector<PaletteCell> cells;
    for (std::int32_t i = 1; i <= colors.UBound() - (i == 1 ? 0 : 2); ++i) {
        const double value = std::nearbyint(Val(colors[i]));
        const bool fits = std::abs(value) <= std::numeric_limits<std::int32_t>::max();
        if (i == 1 && !fits) return 0;
        if (fits && (i == 1 || Val(colors[i]) > -1))
            cells.push_back({static_cast<Color>(value), i});
    }
    if (cells.empty()) return 0;
    ColorPalette palette(colors, {}, services);
    Require(palette.Cells() == cells, "the colours in use are shown");
    while (palette.IsOpen() && input.remaining_bytes() > 0) {
        palette.KeyDown(static_cast<ColorPalette::Key>(input.ConsumeIntegralInRange(0, 12)),
                        input.ConsumeIntegralInRange(1, 4));
        Require(palette.Current() >= 1 && palette.Current() <= palette.CellCount(), "on a cell");
    }
    const PaletteCell& cell = cells[static_cast<std::size_t>(palette.Current()) - 1];
    const std::u16string chosen = IntegerText(cell.color) + u'\t' + IntegerText(cell.index);
    const std::u16string result = palette.Result();
    Require(result.empty() || (!palette.IsOpen() && result == chosen), "the current cell or none");
    return 0;
}
