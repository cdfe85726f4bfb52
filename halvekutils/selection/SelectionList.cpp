#include <halvekutils/base/NumericText.h>
#include <halvekutils/base/RuntimeError.h>
#include <halvekutils/selection/SelectionList.h>

#include <algorithm>
#include <bit>
#include <functional>
#include <limits>
#include <utility>

namespace halvek {

namespace {

constexpr char16_t kEntryEnd = u':';
constexpr char16_t kFieldEnd = u'\t';
constexpr std::u16string_view kAllCodesPiece = u" \t *** ALL CODES *** ";
constexpr std::u16string_view kDeleted = u"1";

/// The length of the field that a text starts with.
std::size_t FieldLength(std::u16string_view text) {
    std::size_t length = 0;
    while (length < text.size() && text[length] != kFieldEnd && text[length] != kEntryEnd) ++length;
    return length;
}

/// Walks over a piece once and sees whether it is marked as deleted.
class DeletedFlag {
  public:
    /// Reads the piece at `start` and returns where it ends.
    std::size_t Read(std::u16string_view text, std::size_t start) {
        std::size_t field = 1;
        std::size_t flagStart = start;
        std::size_t flagEnd = text.size();
        std::size_t at = start;
        for (; at < text.size() && text[at] != kEntryEnd; ++at) {
            if (text[at] != kFieldEnd) continue;
            if (field == fields_) flagEnd = at;
            ++field;
            if (field == fields_ || fields_ == 0) flagStart = at + 1;
        }
        if (fields_ == 0 && at > start) fields_ = field;
        isDeleted_ = field >= fields_ &&
                     text.substr(flagStart, std::min(flagEnd, at) - flagStart) == kDeleted;
        return at;
    }
    bool IsDeleted() const { return isDeleted_; }

  private:
    std::size_t fields_ = 0;  ///< of the first piece that was not empty; its last field is the flag
    bool isDeleted_ = false;
};

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
    starts_.push_back(0);
    if (!doNotIncludeDeleted) deleted_.push_back(false);
    const std::u16string_view text = values_;
    DeletedFlag flag;
    for (std::size_t end = text.find(kEntryEnd); end < text.size();) {
        const std::size_t start = end + 1;
        end = flag.Read(text, start);
        if (doNotIncludeDeleted && flag.IsDeleted()) continue;
        starts_.push_back(static_cast<std::uint32_t>(start));
        if (!doNotIncludeDeleted) deleted_.push_back(flag.IsDeleted());
    }
}

void SelectionList::IndexCodes() {
    std::size_t longest = 0;
    std::size_t codes = 0;
    for (std::int32_t entry = 1; entry <= Count(); ++entry) {
        const std::size_t length = TrimmedCode(entry).size();
        longest = std::max(longest, length);
        if (length > 0) ++codes;
    }
    longestCodeLength_ = static_cast<std::int32_t>(longest);
    // A short text with many codes can only repeat a few of them.
    ResizeIndex(std::bit_ceil(std::min(codes, values_.size() / 8) * 4 / 3 + 2));
    for (std::int32_t entry = 1; entry <= lastShown_; ++entry) AddToIndex(entry);
}

void SelectionList::AddToIndex(std::int32_t entry) {
    const std::u16string_view code = TrimmedCode(entry);
    if (code.empty()) return;
    std::uint32_t& slot = slots_[SlotOf(code)];
    if (slot != 0) return;  // the first entry of a code stands for it
    slot = static_cast<std::uint32_t>(entry);
    if (++indexed_ * 4 > slots_.size() * 3) ResizeIndex(slots_.size() * 2);
}

void SelectionList::ResizeIndex(std::size_t size) {
    std::vector<std::uint32_t> old(size);
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
    return code.empty() ? 0 : static_cast<std::int32_t>(slots_[SlotOf(code)]);
}

std::int32_t SelectionList::RowCount() const {
    return (Count() - 1 + kColumns - 1) / kColumns * kRowsPerBand;
}

std::u16string_view SelectionList::From(std::int32_t entry) const {
    if (entry == kAllCodes) return kAllCodesPiece;
    return std::u16string_view(values_).substr(starts_.at(static_cast<std::size_t>(entry) - 1));
}

std::u16string_view SelectionList::Code(std::int32_t entry) const {
    const std::u16string_view text = From(entry);
    return text.substr(0, FieldLength(text));
}

std::u16string_view SelectionList::TrimmedCode(std::int32_t entry) const {
    return Trimmed(Code(entry));
}

std::u16string_view SelectionList::Description(std::int32_t entry) const {
    std::u16string_view text = From(entry);
    text.remove_prefix(FieldLength(text));
    if (!text.starts_with(kFieldEnd)) return {};
    text.remove_prefix(1);
    return text.substr(0, FieldLength(text));
}

bool SelectionList::IsDeleted(std::int32_t entry) const {
    return !deleted_.empty() && deleted_.at(static_cast<std::size_t>(entry) - 1);
}

bool SelectionList::HasCode(std::int32_t entry) const {
    return entry == kAllCodes || !TrimmedCode(entry).empty();
}

}  // namespace halvek
