// SPDX-License-Identifier: MIT
#include <halvekutils/base/NumericText.h>
#include <halvekutils/base/RuntimeError.h>
#include <halvekutils/dialogs/ColorName.h>
#include <halvekutils/dialogs/ColorPalette.h>
#include <halvekutils/platform/Guard.h>
#include <halvekutils/platform/Services.h>

#include <algorithm>

namespace halvek {

namespace {

constexpr std::int32_t kFirst = 1;
constexpr std::int32_t kNeverShown = 2;  // at the list's end
constexpr double kUnused = -1;

const std::u16string& FirstEntry(const StringArray& colors) {
    const bool exists =
        colors.IsAllocated() && colors.LBound() <= kFirst && colors.UBound() >= kFirst;
    if (!exists) throw RuntimeError(Fault::SubscriptOutOfRange, u"color 1");
    return colors[kFirst];
}

}  // namespace

ColorPalette::ColorPalette(const StringArray& colors, const PopupAnchor& anchor, Services& session)
    : anchor_(anchor), session_(session) {
    const auto log = [&](TextIn line) { session_.LogError(line); };
    cells_.push_back({ToInt32(FirstEntry(colors)), kFirst});
    for (std::int32_t i = kFirst + 1; i <= colors.UBound() - kNeverShown; ++i) {
        const auto prefix = [i] { return kPaletteFault + (u"color " + IntegerText(i) + u": "); };
        Guarded(OnFault::Quiet, prefix, log, [&] {
            const double value = Val(colors[i]);
            if (value > kUnused) cells_.push_back({RoundToInt32(value), i});
        });
    }
}

ColorPalette::~ColorPalette() = default;

const PaletteCell& ColorPalette::CellAt(int cell) const {
    if (cell < 1 || cell > CellCount()) throw RuntimeError(Fault::SubscriptOutOfRange);
    return cells_[static_cast<std::size_t>(cell) - 1];
}

std::u16string ColorPalette::CellName(int cell) const {
    const PaletteCell& shown = CellAt(cell);
    return ColorName(shown.color) + u", " + IntegerText(shown.index) + u" (" +
           ColorHex(shown.color) + u')';
}

void ColorPalette::Click(int cell) {
    const PaletteCell& clicked = CellAt(cell);
    if (!IsOpen()) return;
    const std::u16string index = IntegerText(clicked.index);
    End(IntegerText(clicked.color) + u'\t' + index);
    session_.ShowInDebug(u"CLICKED COLOR " + index);
}

void ColorPalette::KeyDown(Key key, int rowsOnPage) {
    if (!IsOpen()) return;
    switch (key) {
        case Key::Enter:
        case Key::Space:
            Click(current_);
            break;
        case Key::Escape:
            Close();
            break;
        default:
            current_ = Moved(key, rowsOnPage);
            NotifyChanged();
    }
}

int ColorPalette::Moved(Key key, int rowsOnPage) const {
    const int last = CellCount();
    switch (key) {
        case Key::Left:
            return std::max(current_ - 1, 1);
        case Key::Right:
            return std::min(current_ + 1, last);
        case Key::Up:
            return MovedDown(-1);
        case Key::Down:
            return MovedDown(1);
        case Key::PageUp:
            return MovedDown(-rowsOnPage);
        case Key::PageDown:
            return MovedDown(rowsOnPage);
        case Key::Home:
            return 1;
        case Key::End:
            return last;
        case Key::Next:
            return current_ % last + 1;
        case Key::Previous:
            return current_ == 1 ? last : current_ - 1;
        default:
            return current_;
    }
}

/// Straight down or up, as far as there are rows; in a last row that is too short, to its end.
int ColorPalette::MovedDown(int rows) const {
    const int row = (current_ - 1) / kColumns;
    const int target = std::clamp(row + rows, 0, RowCount() - 1);
    return std::min(current_ + (target - row) * kColumns, CellCount());
}

}  // namespace halvek
