// SPDX-License-Identifier: MIT
#include <halvekutils/base/CaseFolding.h>
#include <halvekutils/base/Characters.h>
#include <halvekutils/base/NumericText.h>
#include <halvekutils/selection/SelectCell.h>
#include <halvekutils/selection/SelectionCursor.h>

#include <algorithm>
#include <utility>

namespace halvek {

SelectionCursor::SelectionCursor(const SelectionList& list)
    : list_(list), entry_(list.LastShown() > 0 ? SelectionList::kAllCodes : 0) {}

bool SelectionCursor::GoTo(std::int32_t entry) {
    searched_.clear();
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
        std::min(band * SelectionList::kColumns + ColumnOf(entry_), list_.LastShown());
    const std::int32_t step = bands < 0 ? -1 : 1;
    std::int32_t found = NearestWithCode(target, step);
    if (found == 0) found = NearestWithCode(target, -step);
    return BandOf(found) != BandOf(entry_) && GoTo(found);
}

bool SelectionCursor::TypeLetter(char16_t letter, bool continues) {
    if (entry_ == 0 || letter <= u' ') return false;
    std::u16string start = continues ? std::move(searched_) : std::u16string();
    start += letter;
    std::int32_t found = FindByStart(start, start.size() == 1 ? entry_ + 1 : entry_);
    const bool oneLetter = start.find_first_not_of(letter) == start.npos;
    if (found == 0 && oneLetter) found = FindByStart(start.substr(0, 1), entry_ + 1);
    const bool moved = found != 0 && GoTo(found);
    searched_ = std::move(start);
    return moved;
}

std::int32_t SelectionCursor::FindByStart(std::u16string_view start, std::int32_t from) const {
    const std::int32_t last = list_.LastShown();
    for (std::int32_t i = 0; i < last; ++i) {
        const std::int32_t entry = (from - 1 + i) % last + 1;
        const bool begins = StartsFolded(Trimmed(list_.Code(entry)), start) ||
                            StartsFolded(Trimmed(list_.Description(entry)), start);
        if (begins && list_.HasCode(entry)) return entry;
    }
    return 0;
}

}  // namespace halvek
