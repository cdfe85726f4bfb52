#include <halvekutils/base/NumericText.h>
#include <halvekutils/base/RuntimeError.h>
#include <halvekutils/selection/SelectionList.h>

#include <algorithm>
#include <functional>
#include <limits>
#include <utility>

namespace halvek {

namespace {

constexpr char16_t kEntryEnd = u':';
constexpr char16_t kFieldEnd = u'\t';
constexpr std::u16string_view kCodeEnds = u"\t:";
constexpr std::u16string_view kAllCodesPiece = u" \t *** ALL CODES *** ";
constexpr std::u16string_view kDeleted = u"1";

/// Field number `number`, from 1, of a piece; empty when there is no such field.
std::u16string_view FieldOf(std::u16string_view piece, std::size_t number) {
    for (std::size_t field = 1; field < number; ++field) {
        const std::size_t end = piece.find(kFieldEnd);
        if (end == std::u16string_view::npos) return {};
        piece.remove_prefix(end + 1);
    }
    return piece.substr(0, piece.find(kFieldEnd));
}

std::size_t FieldCount(std::u16string_view piece) {
    return static_cast<std::size_t>(std::ranges::count(piece, kFieldEnd)) + 1;
}

}  // namespace

SelectionList::SelectionList(std::u16string allValues, bool doNotIncludeDeleted)
    : values_(std::move(allValues)) {
    if (values_.size() >= std::size_t{std::numeric_limits<std::int32_t>::max()}) {
        throw RuntimeError(Fault::OutOfMemory);
    }
    ReadEntries(doNotIncludeDeleted);
    lastShown_ = std::min(Count(), RowCount() / kRowsPerBand * kColumns);
    IndexCodes();
}

void SelectionList::ReadEntries(bool doNotIncludeDeleted) {
    const auto pieces = static_cast<std::size_t>(std::ranges::count(values_, kEntryEnd)) + 1;
    starts_.reserve(pieces);
    if (!doNotIncludeDeleted) deleted_.reserve(pieces);
    const std::u16string_view text = values_;
    std::size_t fields = 0;
    std::size_t start = 0;
    for (std::size_t number = 0; number < pieces; ++number) {
        const std::size_t end = std::min(text.find(kEntryEnd, start), text.size());
        const std::u16string_view piece = text.substr(start, end - start);
        bool isDeleted = false;
        if (number > 0 && !piece.empty()) {
            if (fields == 0) fields = FieldCount(piece);
            isDeleted = FieldOf(piece, fields) == kDeleted;
        }
        if (!doNotIncludeDeleted) deleted_.push_back(isDeleted);
        if (!doNotIncludeDeleted || !isDeleted) {
            starts_.push_back(static_cast<std::uint32_t>(start));
        }
        start = end + 1;
    }
}

void SelectionList::IndexCodes() {
    std::size_t longest = 0;
    for (std::int32_t entry = 1; entry <= Count(); ++entry) {
        const std::size_t length = TrimmedCode(entry).size();
        longest = std::max(longest, length);
        if (length > 0 && entry <= lastShown_) AddToIndex(entry);
    }
    longestCodeLength_ = static_cast<std::int32_t>(longest);
}

void SelectionList::AddToIndex(std::int32_t entry) {
    if (indexed_ * 4 >= slots_.size() * 3) GrowIndex();
    std::uint32_t& slot = slots_[SlotOf(TrimmedCode(entry))];
    if (slot != 0) return;  // the first entry of a code stands for it
    slot = static_cast<std::uint32_t>(entry);
    ++indexed_;
}

void SelectionList::GrowIndex() {
    std::vector<std::uint32_t> old(std::max<std::size_t>(slots_.size() * 2, 16));
    old.swap(slots_);
    for (const std::uint32_t entry : old) {
        if (entry != 0) slots_[SlotOf(TrimmedCode(static_cast<std::int32_t>(entry)))] = entry;
    }
}

std::size_t SelectionList::SlotOf(std::u16string_view code) const {
    const std::size_t mask = slots_.size() - 1;
    std::size_t at = std::hash<std::u16string_view>()(code) & mask;
    while (slots_[at] != 0 && TrimmedCode(static_cast<std::int32_t>(slots_[at])) != code) {
        at = (at + 1) & mask;
    }
    return at;
}

std::int32_t SelectionList::Find(std::u16string_view code) const {
    if (slots_.empty() || code.empty()) return 0;
    return static_cast<std::int32_t>(slots_[SlotOf(code)]);
}

std::int32_t SelectionList::RowCount() const {
    return (Count() - 1 + kColumns - 1) / kColumns * kRowsPerBand;
}

std::u16string_view SelectionList::Piece(std::int32_t entry) const {
    if (entry == kAllCodes) return kAllCodesPiece;
    const std::u16string_view text = values_;
    const std::size_t start = starts_.at(static_cast<std::size_t>(entry) - 1);
    return text.substr(start, text.find(kEntryEnd, start) - start);
}

std::u16string_view SelectionList::Code(std::int32_t entry) const {
    if (entry == kAllCodes) return FieldOf(kAllCodesPiece, 1);
    const std::u16string_view text = values_;
    const std::size_t start = starts_.at(static_cast<std::size_t>(entry) - 1);
    return text.substr(start, text.find_first_of(kCodeEnds, start) - start);
}

std::u16string_view SelectionList::TrimmedCode(std::int32_t entry) const {
    return Trimmed(Code(entry));
}

std::u16string_view SelectionList::Description(std::int32_t entry) const {
    return FieldOf(Piece(entry), 2);
}

bool SelectionList::IsDeleted(std::int32_t entry) const {
    return !deleted_.empty() && deleted_.at(static_cast<std::size_t>(entry) - 1);
}

bool SelectionList::HasCode(std::int32_t entry) const {
    return entry == kAllCodes || !TrimmedCode(entry).empty();
}

}  // namespace halvek
