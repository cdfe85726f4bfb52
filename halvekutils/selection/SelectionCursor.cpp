// SPDX-License-Identifier: MIT
#include <halvekutils/selection/SelectCell.h>
#include <halvekutils/selection/SelectionCursor.h>

#include <algorithm>
#include <utility>

namespace halvek {

SelectionCursor::SelectionCursor(const SelectionList& list)
    : list_(list), entry_(list.LastShown() > 0 ? SelectionList::kAllCodes : 0) {}

bool SelectionCursor::GoTo(std::int32_t entry) {
    column_ = ColumnOf(entry);
    return std::exchange(entry_, entry) != entry;
}

bool SelectionCursor::Move(SelectionKey key, std::int32_t bandsOnPage) {
    if (entry_ == 0) return false;
    const std::int32_t page = std::max(bandsOnPage, 1);
    switch (key) {
        case SelectionKey::Left:
            return GoToNearest(entry_ - 1, -1);
        case SelectionKey::Right:
            return GoToNearest(entry_ + 1, 1);
        case SelectionKey::Home:
            return GoToNearest(SelectionList::kAllCodes, 1);
        case SelectionKey::End:
            return GoToNearest(list_.LastShown(), -1);
        case SelectionKey::Up:
            return MoveAcrossBands(-1);
        case SelectionKey::Down:
            return MoveAcrossBands(1);
        case SelectionKey::PageUp:
            return MoveAcrossBands(-page);
        case SelectionKey::PageDown:
            return MoveAcrossBands(page);
        default:
            return false;
    }
}

std::int32_t SelectionCursor::NearestWithCode(std::int32_t entry, std::int32_t step) const {
    while (entry >= 1 && entry <= list_.LastShown()) {
        if (list_.HasCode(entry)) return entry;
        entry += step;
    }
    return 0;
}

bool SelectionCursor::GoToNearest(std::int32_t entry, std::int32_t step) {
    const std::int32_t found = NearestWithCode(entry, step);
    return found != 0 && GoTo(found);
}

bool SelectionCursor::MoveAcrossBands(std::int32_t bands) {
    const std::int32_t last = BandOf(list_.LastShown());
    const std::int64_t wanted = std::int64_t{BandOf(entry_)} + bands;
    const auto band = static_cast<std::int32_t>(std::clamp<std::int64_t>(wanted, 0, last));
    if (band == BandOf(entry_)) return false;
    const std::int32_t target =
        std::min(band * SelectionList::kColumns + column_, list_.LastShown());
    const std::int32_t step = bands < 0 ? -1 : 1;
    std::int32_t found = NearestWithCode(target, step);
    if (found == 0) found = NearestWithCode(target, -step);
    if (BandOf(found) == BandOf(entry_)) return false;
    entry_ = found;
    return true;
}

}  // namespace halvek
