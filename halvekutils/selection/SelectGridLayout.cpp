// SPDX-License-Identifier: MIT
#include <halvekutils/platform/Design.h>
#include <halvekutils/selection/SelectGrid.h>
#include <halvekutils/selection/SelectGridLayout.h>
#include <halvekutils/selection/SelectionList.h>

#include <algorithm>
#include <cstddef>
#include <string>

namespace halvek {

namespace {

using design::kGap;
using design::kMargin;

constexpr std::int32_t kBoxPadding = 150;
constexpr std::int32_t kCellPadding = 210;  // the grid's line and rounding take some of it
constexpr std::int32_t kRowPadding = 60;
constexpr std::int32_t kHeaderPadding = 120;

constexpr std::int32_t kReadableLength = 8;
constexpr std::int32_t kColumnsInView = 5;    // of those that do not fit on the screen
constexpr std::size_t kMeasuredLength = 200;  // wider than any column

std::int32_t CodeWidth(std::int32_t length, const TextMeter& meter) {
    const auto count = std::min(static_cast<std::size_t>(std::max(length, 0)), kMeasuredLength);
    return meter.TextWidth(std::u16string(count, u'W'), CodeFont()) + kCellPadding;
}

std::int32_t NameWidth(std::u16string_view name, const TextMeter& meter) {
    return meter.TextWidth(name.substr(0, kMeasuredLength), DescriptionFont()) + kCellPadding;
}

std::int32_t ColumnWidth(const SelectGridContent& content, const TextMeter& meter,
                         std::int32_t space) {
    const std::int32_t longest = content.longestCodeLength;
    std::int32_t wanted = std::max(CodeWidth(longest, meter), NameWidth(kAllCodesName, meter));
    for (const std::u16string_view name : content.longestDescriptions) {
        wanted = std::max(wanted, NameWidth(name, meter));
    }
    const std::int32_t least = CodeWidth(std::min(longest, kReadableLength), meter);
    if (least * content.columns <= space) return std::min(wanted, space / content.columns);
    // It scrolls across anyway.
    return std::clamp(wanted, least, std::max(space / kColumnsInView, least));
}

void MeasureRows(SelectGridLayout& layout, const TextMeter& meter) {
    layout.codeHeight = meter.TextHeight({}, CodeFont()) + kRowPadding;
    layout.descriptionHeight = meter.TextHeight({}, DescriptionFont()) + kRowPadding;
    layout.headerHeight = layout.codeHeight - kRowPadding + kHeaderPadding;
}

/// The grid's height: as many whole bands as there is space for, at most all of them.
std::int32_t FitBands(SelectGridLayout& layout, std::int32_t bands, std::int32_t space,
                      std::int32_t besideBands) {
    const std::int32_t band = 2 * layout.codeHeight + layout.descriptionHeight;
    const std::int32_t fitting = std::max((space - besideBands) / band, 1);
    layout.bandsOnPage = std::min(fitting, std::max(bands, 1));
    layout.scrollsDown = bands > layout.bandsOnPage;
    return std::min(besideBands + layout.bandsOnPage * band, std::max(space, 0));
}

/// The size of the buttons, which their captions in the desktop's font ask for.
Size ButtonSize(const TextMeter& meter) {
    Size widest;
    for (const char16_t* const caption : {u"OK", u"Cancel"}) {
        widest.width = std::max(widest.width, meter.TextWidth(caption, SelectControlFont()));
        widest.height = std::max(widest.height, meter.TextHeight(caption, SelectControlFont()));
    }
    return design::ButtonFor(widest);
}

}  // namespace

SelectGridLayout LayOutSelectGrid(const SelectGridContent& content, const TextMeter& meter,
                                  Size screen, Size frame) {
    SelectGridLayout layout;
    MeasureRows(layout, meter);
    const Size most = {screen.width - frame.width, screen.height - frame.height};
    const Size button = ButtonSize(meter);
    const std::int32_t boxHeight = meter.TextHeight({}, SelectControlFont()) + kBoxPadding;
    const std::int32_t bars = 2 * content.gridBorder;

    // Across: there is room for the bar, whether the bands need it or not.
    const std::int32_t besideColumns = 2 * kMargin + bars + content.scrollBarWidth;
    const std::int32_t besideBar = 2 * kMargin + 2 * (button.width + kGap);
    layout.columnWidth = ColumnWidth(content, meter, most.width - besideColumns);
    layout.columnWidth = std::max(
        layout.columnWidth,
        (std::min(besideBar + content.findBarWidth, most.width) - besideColumns) / content.columns);
    const std::int32_t columns = layout.columnWidth * content.columns;
    layout.inner.width = std::min(columns + besideColumns, most.width);
    layout.scrollsAcross = columns + besideColumns > most.width;

    // Down
    const std::int32_t gridTop = kMargin + boxHeight + kGap;
    const std::int32_t belowGrid = kGap + button.height + kMargin;
    const std::int32_t besideBands =
        layout.headerHeight + bars + (layout.scrollsAcross ? content.scrollBarWidth : 0);
    const std::int32_t gridHeight = FitBands(layout, content.rowCount / SelectionList::kRowsPerBand,
                                             most.height - gridTop - belowGrid, besideBands);
    layout.inner.height = std::min(gridTop + gridHeight + belowGrid, most.height);

    const std::int32_t width = layout.inner.width - 2 * kMargin;
    const std::int32_t buttonTop = layout.inner.height - kMargin - button.height;
    layout.box = {kMargin, kMargin, width, boxHeight};
    layout.grid = {kMargin, gridTop, width, gridHeight};
    layout.exit = {kMargin + width - button.width, buttonTop, button.width, button.height};
    layout.ok = layout.exit;
    layout.ok.left -= button.width + kGap;
    layout.find = {kMargin, buttonTop, layout.ok.left - kGap - kMargin, button.height};
    layout.form = {layout.inner.width + frame.width, layout.inner.height + frame.height};
    return layout;
}

}  // namespace halvek
