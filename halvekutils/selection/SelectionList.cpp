// SPDX-License-Identifier: MIT
#include <halvekutils/base/CharacterScan.h>
#include <halvekutils/base/Characters.h>
#include <halvekutils/base/NumericText.h>
#include <halvekutils/base/Remarks.h>
#include <halvekutils/base/RuntimeError.h>
#include <halvekutils/selection/SelectionList.h>

#include <algorithm>
#include <limits>
#include <optional>
#include <utility>

namespace halvek {

namespace {

constexpr char16_t kEntryEnd = u':';
constexpr char16_t kFieldEnd = u'\t';
constexpr std::u16string_view kAllCodesPiece = u" \t *** ALL CODES *** ";
constexpr std::u16string_view kDeleted = u"1";
constexpr std::size_t kLongestKept = 64;

/// The field that a text starts with.
std::u16string_view FirstField(std::u16string_view text) {
    return text.substr(0, CharacterScan(text, kFieldEnd, kEntryEnd).Next());
}

/// One piece of the list, built from its separators from left to right.
class Piece {
  public:
    void Start(std::size_t start) {
        start_ = flagStart_ = start;
        codeEnd_ = nameEnd_ = flagEnd_ = kOpen;
        field_ = 1;
    }
    void EndField(std::size_t at) {
        if (field_ == 1) codeEnd_ = at;
        if (field_ == 2) nameEnd_ = at;
        if (field_ == fields_) flagEnd_ = at;
        ++field_;
        if (field_ == fields_ || fields_ == 0) flagStart_ = at + 1;
    }
    void End(std::size_t at) {
        end_ = at;
        if (fields_ == 0 && at > start_) fields_ = field_;
    }

    std::size_t Start() const { return start_; }
    std::size_t End() const { return end_; }
    /// How many fields the piece has, and how many it should have.
    std::size_t Fields() const { return field_; }
    std::size_t ExpectedFields() const { return fields_; }
    std::u16string_view Code(std::u16string_view text) const {
        return text.substr(start_, std::min(codeEnd_, end_) - start_);
    }
    /// The last of the expected fields, if the piece has that many.
    std::u16string_view Flag(std::u16string_view text) const {
        return text.substr(flagStart_, std::min(flagEnd_, end_) - flagStart_);
    }
    std::size_t DescriptionLength() const {
        return codeEnd_ == kOpen ? 0 : std::min(nameEnd_, end_) - codeEnd_ - 1;
    }
    bool IsDeleted(std::u16string_view text) const {
        return field_ >= fields_ && Flag(text) == kDeleted;
    }

  private:
    static constexpr std::size_t kOpen = std::u16string_view::npos;

    std::size_t start_ = 0;
    std::size_t codeEnd_ = kOpen;
    std::size_t nameEnd_ = kOpen;
    std::size_t flagStart_ = 0;
    std::size_t flagEnd_ = kOpen;
    std::size_t end_ = 0;
    std::size_t field_ = 1;
    std::size_t fields_ = 0;  ///< of the first piece that was not empty; its last field is the flag
};

/// Remarks on the entries of a list, for a reader with a listener.
class EntryRemarks {
  public:
    EntryRemarks(std::u16string_view text, Remarks& remarks) : text_(text), remarks_(remarks) {
        remarks_.Begin(text);
        remarks_.NextRecord();  // the header
    }

    void On(const Piece& piece) {
        remarks_.NextRecord();
        const bool isLast = piece.End() == text_.size();
        if (piece.Start() != piece.End()) {
            OnCode(piece.Code(text_));
            OnFields(piece);
            OnFlag(piece);
            if (isLast) Add(RemarkKind::Ignored, 0, piece.End(), kOpenEnd);
        } else if (!isLast) {
            Add(RemarkKind::Defaulted, 0, piece.Start(), u"empty entry: a cell without a code");
        }
    }

  private:
    static constexpr std::u16string_view kOpenEnd =
        u"no colon after the last entry: the total leaves it out";

    void Add(RemarkKind kind, std::size_t field, std::size_t at, std::u16string_view remark) {
        remarks_.Add(kind, field, text_.substr(at), std::u16string(remark));
    }

    void OnCode(std::u16string_view code) {
        const TextIn trimmed = Trimmed(TextIn(code));
        const auto at = static_cast<std::size_t>(code.data() - text_.data());
        if (trimmed.empty()) {
            Add(RemarkKind::Defaulted, 0, at, u"no code: the entry cannot be chosen");
        } else if (!codes_.Add(trimmed)) {
            Add(RemarkKind::Doubled, 0, at,
                u"code " + Quoted(trimmed) + u" is taken: typing it ticks the first");
        }
    }

    void OnFields(const Piece& piece) {
        const std::size_t expected = piece.ExpectedFields();
        const auto number = [](std::size_t count) {
            return IntegerText(static_cast<std::int64_t>(count));
        };
        if (expected < kUsualFields && !std::exchange(fewFieldsTold_, true)) {
            Add(RemarkKind::Defaulted, expected, piece.End(),
                number(expected) + u" fields in an entry: the last is also the deleted flag");
        }
        if (piece.Fields() < expected) {
            Add(RemarkKind::Defaulted, piece.Fields(), piece.End(),
                number(piece.Fields()) + u" of " + number(expected) + u" fields: not deleted");
        } else if (piece.Fields() > expected) {
            Add(RemarkKind::Ignored, expected, piece.End(),
                u"fields after field " + number(expected - 1) + u" ignored");
        }
    }

    void OnFlag(const Piece& piece) {
        const std::size_t expected = piece.ExpectedFields();
        if (expected < kUsualFields || piece.Fields() < expected) return;
        const std::u16string_view flag = piece.Flag(text_);
        if (flag == u"0" || flag == kDeleted) return;
        Add(RemarkKind::Defaulted, expected - 1,
            static_cast<std::size_t>(flag.data() - text_.data()),
            u"deleted flag " + Quoted(flag) + u" is neither 0 nor 1: not deleted");
    }

    static constexpr std::size_t kUsualFields = 3;

    std::u16string_view text_;
    Remarks& remarks_;
    KeyIndex codes_{KeyCase::Exact};
    bool fewFieldsTold_ = false;
};

}  // namespace

SelectionList::SelectionList(std::u16string allValues, bool doNotIncludeDeleted)
    : SelectionList(std::move(allValues), doNotIncludeDeleted, nullptr) {}

SelectionList::SelectionList(std::u16string allValues, bool doNotIncludeDeleted, Remarks* remarks)
    : values_(std::move(allValues)) {
    if (values_.size() >= std::size_t{std::numeric_limits<std::int32_t>::max()}) {
        throw RuntimeError(Fault::OutOfMemory);
    }
    ReadEntries(doNotIncludeDeleted, remarks);
    lastShown_ = std::min(Count(), RowCount() / kRowsPerBand * kColumns);
}

void SelectionList::ReadEntries(bool doNotIncludeDeleted, Remarks* remarks) {
    const std::u16string_view text = values_;
    const std::size_t pieces = CountOf(text, kEntryEnd) + 1;
    starts_.reserve(pieces);
    longest_.reserve(std::min(pieces, kLongestKept));
    if (!doNotIncludeDeleted) deleted_.reserve(pieces);
    starts_.push_back(0);
    if (!doNotIncludeDeleted) deleted_.push_back(false);
    CharacterScan separators(text, kEntryEnd, kFieldEnd);
    Piece piece;
    std::optional<EntryRemarks> entryRemarks;
    if (remarks != nullptr) entryRemarks.emplace(text, *remarks);
    const auto readTo = [&](std::size_t end) {
        piece.End(end);
        const bool isDeleted = piece.IsDeleted(text);
        if (entryRemarks) entryRemarks->On(piece);
        if (doNotIncludeDeleted && isDeleted) return;
        starts_.push_back(static_cast<std::uint32_t>(piece.Start()));
        if (!doNotIncludeDeleted) deleted_.push_back(isDeleted);
        MeasureCode(Trimmed(piece.Code(text)).size());
        MeasureDescription(piece.DescriptionLength());
    };
    bool inHeader = true;
    for (std::size_t at; (at = separators.Next()) < text.size();) {
        if (text[at] == kFieldEnd) {
            piece.EndField(at);
            continue;
        }
        if (!std::exchange(inHeader, false)) readTo(at);
        piece.Start(at + 1);
    }
    if (!inHeader) readTo(text.size());
}

void SelectionList::MeasureCode(std::size_t length) {
    longestCodeLength_ = std::max(longestCodeLength_, static_cast<std::int32_t>(length));
    if (length > 0) ++codes_;
    codeCharacters_ += length;
}

void SelectionList::MeasureDescription(std::size_t length) {
    if (length == 0) return;
    if (longest_.size() == kLongestKept) {
        if (length <= longest_.front().length) return;
        std::ranges::pop_heap(longest_, IsLonger);
        longest_.pop_back();
    }
    longest_.push_back({length, Count()});
    std::ranges::push_heap(longest_, IsLonger);
}

std::vector<std::u16string_view> SelectionList::LongestDescriptions() const {
    std::vector<std::u16string_view> texts;
    for (const Length& kept : longest_) texts.push_back(Description(kept.entry));
    return texts;
}

void SelectionList::PrepareFind() const {
    if (!index_) index_ = IndexOfCodes();
}

SelectionList::Index SelectionList::IndexOfCodes() const {
    Index index(KeyCase::Exact);
    // A short text with many codes can only repeat a few of them.
    const std::size_t distinct = std::min(codes_, values_.size() / 8);
    index.codes.Reserve(distinct, codeCharacters_);
    index.entries.reserve(distinct);
    for (std::int32_t entry = 1; entry <= lastShown_; ++entry) {
        const std::u16string_view code = TrimmedCode(entry);
        if (!code.empty() && index.codes.Add(code)) index.entries.push_back(entry);
    }
    return index;
}

std::int32_t SelectionList::Find(std::u16string_view code) const {
    if (code.empty()) return 0;
    PrepareFind();
    const std::size_t found = index_->codes.Find(code);
    return found == KeyIndex::kNone ? 0 : index_->entries[found];
}

SelectionList::Index SelectionList::IndexInAnyCase() const {
    PrepareFind();
    Index index(KeyCase::Ignored);
    index.codes.Reserve(index_->entries.size(), codeCharacters_);
    index.entries.reserve(index_->entries.size());
    for (const std::int32_t entry : index_->entries) {
        const std::u16string_view code = TrimmedCode(entry);
        if (index.codes.Add(code)) {
            index.entries.push_back(entry);
        } else {
            index.entries[index.codes.Find(code)] = 0;
        }
    }
    return index;
}

std::int32_t SelectionList::FindInAnyCase(std::u16string_view code) const {
    if (code.empty()) return 0;
    if (!anyCase_) anyCase_ = IndexInAnyCase();
    const std::size_t found = anyCase_->codes.Find(code);
    return found == KeyIndex::kNone ? 0 : anyCase_->entries[found];
}

std::int32_t SelectionList::RowCount() const {
    return (Count() - 1 + kColumns - 1) / kColumns * kRowsPerBand;
}

std::u16string_view SelectionList::From(std::int32_t entry) const {
    if (entry == kAllCodes) return kAllCodesPiece;
    return std::u16string_view(values_).substr(starts_.at(static_cast<std::size_t>(entry) - 1));
}

std::u16string_view SelectionList::Code(std::int32_t entry) const {
    return FirstField(From(entry));
}

std::u16string_view SelectionList::TrimmedCode(std::int32_t entry) const {
    return Trimmed(Code(entry));
}

SelectionList::Texts SelectionList::TextsOf(std::int32_t entry) const {
    const std::u16string_view text = From(entry);
    CharacterScan ends(text, kFieldEnd, kEntryEnd);
    const std::size_t codeEnd = std::min(ends.Next(), text.size());
    Texts texts{text.substr(0, codeEnd), {}};
    if (!text.substr(codeEnd).starts_with(kFieldEnd)) return texts;
    const std::size_t start = codeEnd + 1;
    texts.description = text.substr(start, std::min(ends.Next(), text.size()) - start);
    return texts;
}

std::u16string_view SelectionList::Description(std::int32_t entry) const {
    return TextsOf(entry).description;
}

bool SelectionList::IsDeleted(std::int32_t entry) const {
    return !deleted_.empty() && deleted_.at(static_cast<std::size_t>(entry) - 1);
}

bool SelectionList::HasCode(std::int32_t entry) const {
    return entry == kAllCodes || !TrimmedCode(entry).empty();
}

}  // namespace halvek
