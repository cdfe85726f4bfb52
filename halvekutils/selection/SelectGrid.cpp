// SPDX-License-Identifier: MIT
#include <halvekutils/base/CaseFolding.h>
#include <halvekutils/base/CharacterScan.h>
#include <halvekutils/base/Characters.h>
#include <halvekutils/base/NumericText.h>
#include <halvekutils/platform/Beep.h>
#include <halvekutils/platform/Guard.h>
#include <halvekutils/platform/Services.h>
#include <halvekutils/selection/EachCode.h>
#include <halvekutils/selection/SelectGrid.h>
#include <halvekutils/selection/SelectionSearch.h>
#include <halvekutils/text/CharacterFilter.h>

#include <algorithm>
#include <utility>

namespace halvek {

namespace {

constexpr std::u16string_view kInvalidEntry = u"Invalid Entry";
constexpr std::int32_t kLeastColumns = 5;

/// Whether a code becomes another by capitals for some of its small letters.
bool IsInSmallLetters(std::u16string_view code, std::u16string_view listed) {
    return std::ranges::equal(code, listed, [](char16_t small, char16_t character) {
        return small == character || small == FoldCase(character);
    });
}

}  // namespace

SelectGrid::SelectGrid(SelectionRequest request, Services& session, MessageSink showMessage)
    : request_(std::move(request)),
      session_(session),
      showMessage_(std::move(showMessage)),
      list_(std::move(request_.allValues), request_.doNotIncludeDeleted),
      marks_(static_cast<std::size_t>(list_.LastShown()) + 1),
      search_(std::make_unique<SelectionSearch>(list_)) {}

SelectGrid::~SelectGrid() = default;

void SelectGrid::Prepare() {
    busy_ = true;
    if (!request_.selectedValues.empty()) {
        list_.PrepareFind();
        codes_.Reserve(request_.selectedValues.size());
    }
    ForEachCode(request_.selectedValues, [&](std::u16string_view code) {
        CheckEntry(code);
        return true;
    });
    if (!request_.typedCharacter.empty()) {
        openedByTyping_ = true;
        std::u16string text = Box().text;
        if (!text.empty() && !text.ends_with(u',')) text += u',';
        codes_.Type(text + request_.typedCharacter);
    }
    codes_.Select(Box().text.size(), 0);
    const std::int32_t firstTicked = Choice().empty() ? 0 : NextTicked(0);
    if (firstTicked > 0) cursor_.GoTo(firstTicked);
    busy_ = false;
}

// What the window shows

std::u16string SelectGrid::Caption() const {
    if (list_.Count() < 2) return request_.listName;
    return request_.listName + u"    [Total: " + IntegerText(list_.Count() - 2) + u"]";
}

std::u16string SelectGrid::HeaderText() const {
    if (Choice().empty()) return request_.listName;
    std::u16string text;
    text.reserve(request_.listName.size() + Choice().size() + 4);
    return text.append(request_.listName).append(u"  (").append(Choice()).append(u")");
}

std::int32_t SelectGrid::ShownColumns() const {
    if (list_.RowCount() > SelectionList::kRowsPerBand) return ColumnCount();
    std::int32_t last = list_.LastShown();
    while (last > kLeastColumns && !list_.HasCode(last)) --last;
    return std::max(last, kLeastColumns);
}

std::u16string SelectGrid::ChoiceInWords(std::size_t maxLines) const {
    if (Choice().empty()) return {};
    const std::size_t count = CountOf(Choice(), u',') + 1;
    std::u16string text = IntegerText(static_cast<std::int64_t>(count)) + u" selected";
    std::size_t lines = 0;
    ForEachCode(Choice(), [&](std::u16string_view code) {
        if (lines == maxLines) return false;
        ++lines;
        text.append(u"\n").append(code);
        const std::int32_t entry = list_.Find(code);
        if (entry > 0) text.append(u"  ").append(Trimmed(list_.Description(entry)));
        return true;
    });
    if (count > lines) {
        text += u"\nand " + IntegerText(static_cast<std::int64_t>(count - lines)) + u" more";
    }
    return text;
}

SelectCell SelectGrid::Cell(std::int32_t row, std::int32_t column) const {
    const auto cell = [&] {
        const bool isHeader = row == 0 && column >= 1 && column <= ColumnCount();
        if (isHeader) return HeaderCell(HeaderText());
        const CellPlace place{row, column};
        return EntryCell(list_, place, IsTicked(EntryAt(list_, place)));
    };
    return Guarded(OnFault::Quiet, u"ERR in frmSelectGrid_grdSelection.GetStyleRowCol: ", session_,
                   SelectCell(), cell);
}

std::u16string SelectGrid::AccessibleText(std::int32_t row, std::int32_t column) const {
    return halvek::AccessibleText(list_, EntryAt(list_, {row, column}));
}

// Choosing entries

void SelectGrid::ClickCell(std::int32_t row, std::int32_t column) {
    if (row == 0) {
        ClickHeader();
        return;
    }
    const std::int32_t entry = EntryAt(list_, {row, column});
    if (!IsOpen() || entry == 0 || !list_.HasCode(entry)) return;
    if (cursor_.GoTo(entry)) NotifyChanged();
    Toggle(entry);
}

void SelectGrid::ClickHeader() {
    if (IsOpen()) Finish({});
}

void SelectGrid::Toggle(std::int32_t entry) {
    ++ticksVersion_;
    const auto toggle = [&] {
        const bool on = !IsTicked(entry);
        entry == SelectionList::kAllCodes ? ToggleAll(on) : ToggleOne(entry, on);
        changed_ = true;
        return true;
    };
    Logged(u"ItemChecked", false, toggle);
    NotifyChanged();
}

void SelectGrid::ToggleOne(std::int32_t entry, bool on) {
    const TextIn code = Trimmed(list_.Code(entry));
    const bool emptied = on ? codes_.Add(code) : codes_.Remove(code);
    if (emptied) ClearMarks();
    marks_[static_cast<std::size_t>(entry)] = on;
}

void SelectGrid::ToggleAll(bool on) {
    std::vector<std::u16string_view> codes;
    for (std::int32_t entry = 2; on && entry <= list_.LastShown(); ++entry) {
        const std::u16string_view code = list_.Code(entry);
        if (code != kAllCodesName && !Trimmed(code).empty()) codes.push_back(Trimmed(code));
    }
    const bool emptied = codes_.Replace(codes);
    marks_.assign(marks_.size(), on && !emptied);
}

void SelectGrid::ClearChoice() {
    ClearMarks();
    codes_.Clear();
}

void SelectGrid::GoTo(std::int32_t entry) {
    if (entry > 0 && cursor_.GoTo(entry)) NotifyChanged();
}

void SelectGrid::KeyDown(Key key, std::int32_t bandsOnPage) {
    if (key == Key::Enter) return Accept();
    if (!IsOpen() || CurrentEntry() == 0) return;
    if (key == Key::Space) return Toggle(CurrentEntry());
    if (cursor_.Move(key, bandsOnPage)) NotifyChanged();
}

void SelectGrid::GoToNextTicked() {
    if (IsOpen()) GoTo(NextTicked(CurrentEntry()));
}

/// The first ticked entry after one, and on at the start of the list; 0 for none.
std::int32_t SelectGrid::NextTicked(std::int32_t entry) const {
    const std::int32_t last = list_.LastShown();
    for (std::int32_t i = 0; i < last; ++i) {
        const std::int32_t next = (entry + i) % last + 1;
        if (IsTicked(next) && list_.HasCode(next)) return next;
    }
    return 0;
}

// Finding an entry by its name

void SelectGrid::Find(TextIn word) {
    if (!IsOpen()) return;
    search_->Find(word);
    if (search_->Best() > 0) cursor_.GoTo(search_->Best());
    NotifyChanged();
}

void SelectGrid::FindNext(bool backwards) {
    if (IsOpen()) GoTo(search_->NextAfter(CurrentEntry(), backwards));
}

bool SelectGrid::ToggleFound() {
    if (!IsOpen() || FoundPlace() == 0) return false;
    Toggle(CurrentEntry());
    return true;
}

std::int32_t SelectGrid::FoundCount() const {
    return search_->Count();
}

std::int32_t SelectGrid::FoundPlace() const {
    return search_->PlaceOf(CurrentEntry());
}

// The box of typed codes

void SelectGrid::EditBox(TextIn text, std::int32_t caret, std::int32_t selected) {
    if (!IsOpen()) return;
    if (text != Box().text) {
        codes_.Type(text.Str());
        if (Box().text.empty()) {
            changed_ = true;
            ++ticksVersion_;
            ClearChoice();
        }
    }
    codes_.MoveCaret(caret, selected);
    NotifyChanged();
}

void SelectGrid::EnableBox(bool enabled) {
    codes_.Enable(enabled);
    NotifyChanged();
}

void SelectGrid::FocusBox(BoxFocus how) {
    const bool openedByTyping = std::exchange(openedByTyping_, false);
    if (IsOpen() && how == BoxFocus::Entered && !openedByTyping) CheckTypedCodes();
}

void SelectGrid::CapitalizeCodes() {
    if (!IsOpen() || busy_ || !Box().enabled) return;
    std::u16string text = Box().text;
    ForEachCode(text, [&](std::u16string_view code) {
        if (code.empty() || list_.Find(code) > 0) return true;
        const std::int32_t entry = list_.FindInAnyCase(code);
        const std::u16string_view listed = entry > 0 ? Trimmed(list_.Code(entry)) : TextIn();
        if (IsInSmallLetters(code, listed)) {
            std::ranges::copy(listed, text.begin() + (code.data() - text.data()));
        }
        return true;
    });
    if (text == Box().text) return;
    codes_.Type(std::move(text));
    codes_.Select(static_cast<std::size_t>(Box().caret), static_cast<std::size_t>(Box().selected));
    NotifyChanged();
}

void SelectGrid::ReleaseComma() {
    if (IsOpen()) CheckTypedCodes();
}

bool SelectGrid::ValidateBox() {
    return !IsOpen() || CheckTypedCodes();
}

// Checking what was typed

bool SelectGrid::CheckTypedCodes() {
    if (busy_) return true;
    const std::vector<bool> before = marks_;
    busy_ = true;
    const bool accepted = Logged(u"UpdateGrid", false, [&] { return RunCheck(); });
    busy_ = false;
    if (marks_ != before) {
        changed_ = true;
        ++ticksVersion_;
        if (const std::int32_t entry = LastChosenBeside(before); entry > 0) cursor_.GoTo(entry);
    }
    NotifyChanged();
    return accepted;
}

/// The entry of the last chosen code that was not ticked before; 0 for none.
std::int32_t SelectGrid::LastChosenBeside(const std::vector<bool>& before) const {
    for (std::u16string_view codes = Choice(); !codes.empty();) {
        const std::size_t start = codes.rfind(u',') + 1;  // 0 where there is no comma
        const std::int32_t entry = list_.Find(codes.substr(start));
        if (!before[static_cast<std::size_t>(entry)]) return entry;
        codes = codes.substr(0, start > 0 ? start - 1 : 0);
    }
    return 0;
}

bool SelectGrid::RunCheck() {
    if (Trimmed(Box().text).empty()) {
        ClearChoice();
        return true;
    }
    return (!Box().enabled || HasGoodForm()) && MarkTypedCodes();
}

bool SelectGrid::HasGoodForm() {
    const std::u16string_view text = Box().text;
    if (text.starts_with(u',')) return RefuseForm(0, 1);
    if (const std::size_t at = text.find(u",,"); at != text.npos) return RefuseForm(at, 1);
    std::u16string cleaned;
    RemoveUnwantedChars(text, cleaned);
    return cleaned == text || RefuseForm(0, text.size());
}

bool SelectGrid::RefuseForm(std::size_t start, std::size_t length) {
    codes_.Select(start, length);
    const std::u16string text(kInvalidEntry);
    Tell({text, SelectionMessage::Icon::None, text});
    return false;
}

bool SelectGrid::MarkTypedCodes() {
    // Everything that may fail comes before the first mark is cleared.
    list_.PrepareFind();
    codes_.StartCheck();
    ClearMarks();
    bool accepted = true;
    bool twice = false;
    ForEachCode(Box().text, [&](std::u16string_view code) {
        const EntryCheck found = CheckEntry(code);
        twice = twice || found == EntryCheck::AcceptedBefore;
        accepted = found != EntryCheck::Refused;
        return accepted;
    });
    if (!accepted) return false;
    codes_.EndCheck();
    if (twice) Tell({u"Duplicates are not allowed!", SelectionMessage::Icon::None, {}});
    return !twice;
}

SelectGrid::EntryCheck SelectGrid::CheckEntry(std::u16string_view code) {
    return Logged(u"FindOneItem", EntryCheck::Refused, [&] {
        if (code.empty()) return EntryCheck::Accepted;
        const auto entry = static_cast<std::size_t>(list_.Find(code));
        if (entry == 0) {
            RefuseCode(code);
            return EntryCheck::Refused;
        }
        // A code that is already ticked is already in the choice.
        if (marks_[entry]) return EntryCheck::AcceptedBefore;
        codes_.Accept(code);
        marks_[entry] = true;
        return EntryCheck::Accepted;
    });
}

void SelectGrid::RefuseCode(std::u16string_view code) {
    codes_.SelectCode(code);
    const bool quoted = code.find(u'\'') == code.npos;
    Tell({(quoted ? u"'" : u"<") + std::u16string(code) + (quoted ? u"'" : u">") +
              u" is not a valid entry.",
          SelectionMessage::Icon::Information,
          {}});
}

// How it ends

void SelectGrid::Accept() {
    if (!IsOpen()) return;
    // A check that has not returned yet, because an event loop of the host's runs above its
    // message: a check within it accepts any codes.
    if (busy_) return Beep();
    // Everything that may fail comes before the check.
    std::u16string result;
    result.reserve(Box().text.size());
    if (CheckTypedCodes() && IsOpen()) Finish(std::move(result));
}

void SelectGrid::Finish(std::u16string result) {
    result = changed_ ? Choice() : u"CANCEL";
    cancelled_ = !changed_;
    End(std::move(result));
}

void SelectGrid::OnClose() {
    End(std::move(request_.selectedValues));
}

void SelectGrid::Tell(const SelectionMessage& message) {
    NotifyChanged();
    if (showMessage_) showMessage_(message);
}

template <class Value, class Body>
Value SelectGrid::Logged(std::u16string_view routine, Value neutral, const Body& body) const {
    const auto prefix = [&] { return u"ERR in frmSelectGrid." + std::u16string(routine) + u": "; };
    return Guarded(OnFault::Quiet, prefix, session_, neutral, body);
}

}  // namespace halvek
