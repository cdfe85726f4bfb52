// SPDX-License-Identifier: MIT
#include <halvekutils/base/CaseFolding.h>
#include <halvekutils/base/CharacterScan.h>
#include <halvekutils/base/NumericText.h>
#include <halvekutils/platform/Guard.h>
#include <halvekutils/selection/SelectGrid.h>
#include <halvekutils/text/CharacterFilter.h>

#include <algorithm>
#include <cstring>
#include <utility>

namespace halvek {

namespace {

constexpr Color kHeaderBackground = Rgb(250, 212, 135);
constexpr Color kDescriptionBackground = Rgb(235, 235, 235);
constexpr Color kDeletedText = Rgb(255, 0, 0);
constexpr Color kAllCodesText = Rgb(0, 0, 255);
constexpr std::u16string_view kInvalidEntry = u"Invalid Entry";

constexpr auto kNone = std::u16string_view::npos;

/// Calls `visit` with each trimmed piece between commas, until it returns false.
template <class Visit>
void ForEachCode(std::u16string_view text, const Visit& visit) {
    while (true) {
        const std::size_t end = text.find(u',');
        if (!visit(Trimmed(text.substr(0, end))) || end == kNone) return;
        text.remove_prefix(end + 1);
    }
}

void Append(std::u16string& codes, std::u16string_view code) {
    const std::size_t comma = codes.empty() ? 0 : 1;
    codes.reserve(codes.size() + comma + code.size());  // both or neither
    codes.append(comma, u',').append(code);
}

/// The codes of a text, joined anew, all but one.
std::u16string JoinedWithout(std::u16string_view text, std::u16string_view leftOut) {
    std::u16string codes;
    codes.reserve(text.size());
    ForEachCode(text, [&](std::u16string_view code) {
        if (!code.empty() && code != leftOut) Append(codes, code);
        return true;
    });
    return codes;
}

/// True when two texts are the same; quick for texts as short as codes.
bool IsSame(std::u16string_view left, std::u16string_view right) {
    constexpr std::size_t kWord = 4;
    if (left.size() != right.size()) return false;
    if (left.size() < kWord) return left == right;
    // The ends first: they overlap where the middle is short.
    const std::size_t end = left.size() - kWord;
    return std::memcmp(left.data(), right.data(), kWord * sizeof(char16_t)) == 0 &&
           std::memcmp(left.data() + end, right.data() + end, kWord * sizeof(char16_t)) == 0 &&
           (left.size() <= 2 * kWord || left == right);
}

struct CodePlace {
    std::size_t start = kNone;
    bool twice = false;
};

/// Where a code stands among codes that are joined without blanks.
CodePlace PlaceOfCode(std::u16string_view codes, std::u16string_view code) {
    CodePlace place;
    CharacterScan commas(codes, u',');
    for (std::size_t start = 0; start <= codes.size();) {
        const std::size_t end = std::min(commas.Next(), codes.size());
        if (IsSame({codes.data() + start, end - start}, code)) {
            place.twice = place.start != kNone;
            if (place.twice) break;
            place.start = start;
        }
        start = end + 1;
    }
    return place;
}

/// Takes a code that stands there once out of joined codes, with one of the commas beside it.
void Erase(std::u16string& codes, std::size_t start, std::size_t length) {
    if (start + length < codes.size()) {
        codes.erase(start, length + 1);
    } else {
        codes.erase(start - std::min<std::size_t>(start, 1));
    }
}

std::u16string ToolTipOf(std::u16string_view text) {
    return text.empty() ? std::u16string() : u' ' + std::u16string(text) + u' ';
}

constexpr std::int32_t BandOf(std::int32_t entry) {
    return (entry - 1) / SelectionList::kColumns;
}
constexpr std::int32_t ColumnOf(std::int32_t entry) {
    return (entry - 1) % SelectionList::kColumns + 1;
}

}  // namespace

SelectGrid::SelectGrid(SelectionRequest request, Services& session, MessageSink showMessage)
    : request_(std::move(request)),
      session_(session),
      showMessage_(std::move(showMessage)),
      list_(std::move(request_.allValues), request_.doNotIncludeDeleted),
      marks_(static_cast<std::size_t>(list_.LastShown()) + 1),
      current_(list_.LastShown() > 0 ? SelectionList::kAllCodes : 0) {}

SelectGrid::~SelectGrid() = default;

void SelectGrid::Prepare() {
    busy_ = true;
    if (!request_.selectedValues.empty()) {
        list_.PrepareFind();
        box_.text.reserve(request_.selectedValues.size());
    }
    ForEachCode(request_.selectedValues, [&](std::u16string_view code) {
        CheckEntry(code);
        return true;
    });
    if (!request_.typedCharacter.empty()) {
        openedByTyping_ = true;
        std::u16string text = box_.text;
        if (!text.empty() && !text.ends_with(u',')) text += u',';
        SetBoxText(text + request_.typedCharacter);
    }
    SelectInBox(box_.text.size(), 0);
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

SelectCell SelectGrid::Cell(std::int32_t row, std::int32_t column) const {
    return Guarded(
        OnFault::Quiet, u"ERR in frmSelectGrid_grdSelection.GetStyleRowCol: ",
        [this](TextIn line) { session_.LogError(line); }, SelectCell(),
        [&] { return MakeCell(row, column); });
}

SelectCell SelectGrid::MakeCell(std::int32_t row, std::int32_t column) const {
    SelectCell cell;
    cell.font = CodeFont();
    if (row < 0 || row > RowCount() || column < 1 || column > ColumnCount()) return cell;
    if (row == 0) {
        cell.kind = SelectCell::Kind::Header;
        cell.text = HeaderText();
        cell.background = kHeaderBackground;
        cell.alignment = SelectCell::Alignment::Centre;
        return cell;
    }
    constexpr SelectCell::Kind kKinds[] = {SelectCell::Kind::Check, SelectCell::Kind::Code,
                                           SelectCell::Kind::Description};
    cell.kind = kKinds[(row - 1) % SelectionList::kRowsPerBand];
    if (cell.kind == SelectCell::Kind::Description) {
        cell.font = DescriptionFont();
        cell.background = kDescriptionBackground;
    }
    FillIn(cell, EntryAt(row, column));
    return cell;
}

void SelectGrid::FillIn(SelectCell& cell, std::int32_t entry) const {
    if (cell.kind == SelectCell::Kind::Check) {
        if (entry == 0 || !list_.HasCode(entry)) {
            cell.kind = SelectCell::Kind::Plain;
            return;
        }
        cell.checked = marks_[static_cast<std::size_t>(entry)];
        cell.toolTip = cell.checked ? u" SELECTED " : u" NOT SELECTED ";
        return;
    }
    if (entry == 0) return;
    const bool isCode = cell.kind == SelectCell::Kind::Code;
    cell.text = isCode ? list_.Code(entry) : list_.Description(entry);
    cell.toolTip = ToolTipOf(cell.text);
    if (entry == SelectionList::kAllCodes) {
        cell.textColor = kAllCodesText;
        cell.alignment = SelectCell::Alignment::Centre;
    } else if (list_.IsDeleted(entry)) {
        cell.textColor = kDeletedText;
    }
}

std::u16string SelectGrid::AccessibleText(std::int32_t row, std::int32_t column) const {
    const std::int32_t entry = EntryAt(row, column);
    if (entry == 0 || !list_.HasCode(entry)) return {};
    std::u16string text(Trimmed(list_.Code(entry)));
    if (const TextIn name = Trimmed(list_.Description(entry)); !name.empty()) {
        if (!text.empty()) text += u", ";
        text += name;
    }
    text += marks_[static_cast<std::size_t>(entry)] ? u", selected" : u", not selected";
    if (list_.IsDeleted(entry)) text += u", deleted";
    return text;
}

std::int32_t SelectGrid::EntryAt(std::int32_t row, std::int32_t column) const {
    if (row < 1 || row > RowCount() || column < 1 || column > ColumnCount()) return 0;
    const std::int32_t entry =
        (row - 1) / SelectionList::kRowsPerBand * SelectionList::kColumns + column;
    return entry <= list_.LastShown() ? entry : 0;
}

CellPlace SelectGrid::PlaceOf(std::int32_t entry) {
    if (entry < 1) return {};
    return {BandOf(entry) * SelectionList::kRowsPerBand + 1, ColumnOf(entry)};
}

// Choosing entries

void SelectGrid::ClickCell(std::int32_t row, std::int32_t column) {
    if (row == 0) {
        ClickHeader();
        return;
    }
    const std::int32_t entry = EntryAt(row, column);
    if (!open_ || entry == 0 || !list_.HasCode(entry)) return;
    SetCurrent(entry);
    Toggle(entry);
}

void SelectGrid::ClickHeader() {
    if (open_) End(!changed_);
}

void SelectGrid::Toggle(std::int32_t entry) {
    const auto toggle = [&] {
        const auto mark = static_cast<std::size_t>(entry);
        const bool on = !marks_[mark];
        if (entry == SelectionList::kAllCodes) {
            SelectAll(on);
        } else if (on) {
            AddToChoice(Trimmed(list_.Code(entry)));
        } else {
            RemoveFromChoice(Trimmed(list_.Code(entry)));
        }
        if (entry != SelectionList::kAllCodes) marks_[mark] = on;
        changed_ = true;
        return true;
    };
    Logged(u"ItemChecked", false, toggle);
    NotifyChanged();
}

void SelectGrid::SelectAll(bool on) {
    std::u16string codes;
    if (on) {
        const auto forEach = [&](const auto& visit) {
            for (std::int32_t entry = 2; entry <= list_.LastShown(); ++entry) {
                const std::u16string_view code = list_.Code(entry);
                if (code != kAllCodesName && !Trimmed(code).empty()) visit(Trimmed(code));
            }
        };
        std::size_t length = 0;
        forEach([&](std::u16string_view code) { length += code.size() + 1; });
        codes.reserve(length);
        forEach([&](std::u16string_view code) {
            Append(codes, code);
            hasComma_ = hasComma_ || code.find(u',') != kNone;
        });
    }
    marks_.assign(marks_.size(), on);
    SetChoice(std::move(codes));
}

void SelectGrid::AddToChoice(std::u16string_view code) {
    if (!boxIsChoice_) {
        std::u16string codes = JoinedWithout(box_.text, {});
        codes.reserve(codes.size() + 1 + code.size());
        SetChoice(std::move(codes));
    }
    Append(box_.text, code);
    hasComma_ = hasComma_ || code.find(u',') != kNone;
    CloseChoice();
}

void SelectGrid::RemoveFromChoice(std::u16string_view code) {
    const bool isJoined = boxIsChoice_ && !hasComma_;
    const CodePlace place = isJoined ? PlaceOfCode(box_.text, code) : CodePlace();
    if (place.start == kNone || place.twice) return SetChoice(JoinedWithout(box_.text, code));
    Erase(box_.text, place.start, code.size());
    TakeBoxAsChoice(box_.text.empty());
}

void SelectGrid::SetChoice(std::u16string codes) {
    const bool emptied = codes.empty() && !box_.text.empty();
    box_.text = std::move(codes);
    TakeBoxAsChoice(emptied);
}

void SelectGrid::TakeBoxAsChoice(bool emptied) {
    boxIsChoice_ = true;
    choice_ = {};
    if (emptied) ClearMarks();
    CloseChoice();
}

void SelectGrid::CloseChoice() {
    if (box_.text.ends_with(u',')) box_.text.pop_back();  // a code that ends in one
    SelectInBox(box_.text.size(), 0);
}

void SelectGrid::ClearMarks() {
    marks_.assign(marks_.size(), false);
    choice_.clear();
    boxIsChoice_ = box_.text.empty();
}

// Moving in the grid

void SelectGrid::KeyDown(Key key, std::int32_t bandsOnPage) {
    if (key == Key::Enter) return Accept();
    if (!open_ || current_ == 0) return;
    const std::int32_t page = std::max(bandsOnPage, 1);
    switch (key) {
        case Key::Space:
            return Toggle(current_);
        case Key::Left:
            return MoveTo(current_ - 1, -1);
        case Key::Right:
            return MoveTo(current_ + 1, 1);
        case Key::Home:
            return MoveTo(SelectionList::kAllCodes, 1);
        case Key::End:
            return MoveTo(list_.LastShown(), -1);
        case Key::Up:
            return MoveAcrossBands(-1);
        case Key::Down:
            return MoveAcrossBands(1);
        case Key::PageUp:
            return MoveAcrossBands(-page);
        case Key::PageDown:
            return MoveAcrossBands(page);
        case Key::Enter:
            break;  // above
    }
}

std::int32_t SelectGrid::NearestWithCode(std::int32_t entry, std::int32_t step) const {
    while (entry >= 1 && entry <= list_.LastShown()) {
        if (list_.HasCode(entry)) return entry;
        entry += step;
    }
    return 0;
}

void SelectGrid::MoveTo(std::int32_t entry, std::int32_t step) {
    const std::int32_t found = NearestWithCode(entry, step);
    if (found != 0) SetCurrent(found);
}

void SelectGrid::MoveAcrossBands(std::int32_t bands) {
    const std::int32_t last = BandOf(list_.LastShown());
    const std::int64_t wanted = std::int64_t{BandOf(current_)} + bands;
    const auto band = static_cast<std::int32_t>(std::clamp<std::int64_t>(wanted, 0, last));
    if (band == BandOf(current_)) return;
    const std::int32_t target =
        std::min(band * SelectionList::kColumns + ColumnOf(current_), list_.LastShown());
    const std::int32_t step = bands < 0 ? -1 : 1;
    std::int32_t found = NearestWithCode(target, step);
    if (found == 0) found = NearestWithCode(target, -step);
    if (BandOf(found) != BandOf(current_)) SetCurrent(found);
}

void SelectGrid::TypeLetter(char16_t letter, bool continues) {
    if (!open_ || current_ == 0 || letter <= u' ') return;
    std::u16string start = continues ? std::move(searched_) : std::u16string();
    start += letter;
    std::int32_t found = FindByStart(start, start.size() == 1 ? current_ + 1 : current_);
    const bool oneLetter = start.find_first_not_of(letter) == kNone;
    if (found == 0 && oneLetter) found = FindByStart(start.substr(0, 1), current_ + 1);
    if (found != 0) SetCurrent(found);
    searched_ = std::move(start);
}

std::int32_t SelectGrid::FindByStart(std::u16string_view start, std::int32_t from) const {
    const std::int32_t last = list_.LastShown();
    for (std::int32_t i = 0; i < last; ++i) {
        const std::int32_t entry = (from - 1 + i) % last + 1;
        const bool begins = StartsFolded(Trimmed(list_.Code(entry)), start) ||
                            StartsFolded(Trimmed(list_.Description(entry)), start);
        if (begins && list_.HasCode(entry)) return entry;
    }
    return 0;
}

void SelectGrid::SetCurrent(std::int32_t entry) {
    searched_.clear();
    if (std::exchange(current_, entry) != entry) NotifyChanged();
}

// The box of typed codes

void SelectGrid::EditBox(TextIn text, std::int32_t caret, std::int32_t selected) {
    if (!open_) return;
    if (text != box_.text) {
        const bool emptied = text.empty();
        SetBoxText(text.Str());
        if (emptied) {
            changed_ = true;
            ClearMarks();
        }
    }
    const auto size = static_cast<std::int32_t>(box_.text.size());
    box_.caret = std::clamp(caret, 0, size);
    box_.selected = std::clamp(selected, 0, size - box_.caret);
    NotifyChanged();
}

void SelectGrid::SetBoxText(std::u16string text) {
    if (boxIsChoice_) choice_ = std::move(box_.text);
    boxIsChoice_ = false;
    box_.text = std::move(text);
}

void SelectGrid::SelectInBox(std::size_t start, std::size_t length) {
    box_.caret = static_cast<std::int32_t>(start);
    box_.selected = static_cast<std::int32_t>(std::min(length, box_.text.size() - start));
    ++boxVersion_;
}

void SelectGrid::EnableBox(bool enabled) {
    box_.enabled = enabled;
    NotifyChanged();
}

void SelectGrid::FocusBox(BoxFocus how) {
    const bool openedByTyping = std::exchange(openedByTyping_, false);
    if (open_ && how == BoxFocus::Entered && !openedByTyping) CheckTypedCodes();
}

void SelectGrid::ReleaseComma() {
    if (open_) CheckTypedCodes();
}

bool SelectGrid::ValidateBox() {
    return !open_ || CheckTypedCodes();
}

// Checking what was typed

bool SelectGrid::CheckTypedCodes() {
    if (busy_) return true;
    const std::vector<bool> before = marks_;
    busy_ = true;
    const bool accepted = Logged(u"UpdateGrid", false, [&] { return RunCheck(); });
    busy_ = false;
    if (marks_ != before) changed_ = true;
    NotifyChanged();
    return accepted;
}

bool SelectGrid::RunCheck() {
    if (Trimmed(box_.text).empty()) {
        ClearMarks();
        return true;
    }
    return (!box_.enabled || HasGoodForm()) && MarkTypedCodes();
}

bool SelectGrid::HasGoodForm() {
    const std::u16string_view text = box_.text;
    if (text.starts_with(u',')) return RefuseForm(0, 1);
    if (const std::size_t at = text.find(u",,"); at != kNone) return RefuseForm(at, 1);
    std::u16string cleaned;
    RemoveUnwantedChars(text, cleaned);
    return cleaned == text || RefuseForm(0, text.size());
}

bool SelectGrid::RefuseForm(std::size_t start, std::size_t length) {
    SelectInBox(start, length);
    const std::u16string text(kInvalidEntry);
    Tell({text, SelectionMessage::Icon::None, text});
    return false;
}

bool SelectGrid::MarkTypedCodes() {
    // What may fail comes before the first mark goes.
    list_.PrepareFind();
    choice_.reserve(box_.text.size());
    ClearMarks();
    bool accepted = true;
    bool twice = false;
    ForEachCode(box_.text, [&](std::u16string_view code) {
        const EntryCheck found = CheckEntry(code);
        twice = twice || found == EntryCheck::AcceptedBefore;
        accepted = found != EntryCheck::Refused;
        return accepted;
    });
    if (!accepted) return false;
    if (choice_ == box_.text) {
        choice_ = {};
        boxIsChoice_ = true;
    }
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
        // A code ticked already is in the choice already.
        if (marks_[entry]) return EntryCheck::AcceptedBefore;
        Append(boxIsChoice_ ? box_.text : choice_, code);
        marks_[entry] = true;
        return EntryCheck::Accepted;
    });
}

void SelectGrid::RefuseCode(std::u16string_view code) {
    const std::u16string_view text = box_.text;
    const bool closed = text.ends_with(u',');
    std::u16string sought = u',' + std::u16string(code);
    if (closed) sought += u',';
    const std::size_t comma = text.find(sought);
    const std::size_t start = comma == kNone ? 0 : comma + 1;
    const bool withComma = closed || start + code.size() + 1 <= text.size();
    SelectInBox(start, code.size() + (withComma ? 1 : 0));
    const bool quoted = code.find(u'\'') == kNone;
    Tell({(quoted ? u"'" : u"<") + std::u16string(code) + (quoted ? u"'" : u">") +
              u" is not a valid entry.",
          SelectionMessage::Icon::Information,
          {}});
}

// How it ends

void SelectGrid::Accept() {
    if (open_ && CheckTypedCodes() && open_) End(!changed_);
}

void SelectGrid::Cancel() {
    if (!open_) return;
    choice_ = std::move(request_.selectedValues);
    boxIsChoice_ = false;
    End(false);
}

void SelectGrid::End(bool cancelled) {
    cancelled_ = cancelled;
    open_ = false;
    NotifyChanged();
}

std::u16string SelectGrid::ReturnValue() const {
    return cancelled_ ? u"CANCEL" : std::u16string(Choice());
}

void SelectGrid::Tell(const SelectionMessage& message) {
    NotifyChanged();
    if (showMessage_) showMessage_(message);
}

void SelectGrid::NotifyChanged() const {
    if (Changed) Changed();
}

template <class Result, class Body>
Result SelectGrid::Logged(std::u16string_view routine, Result neutral, const Body& body) const {
    const auto prefix = [&] { return u"ERR in frmSelectGrid." + std::u16string(routine) + u": "; };
    return Guarded(
        OnFault::Quiet, prefix, [this](TextIn line) { session_.LogError(line); }, neutral, body);
}

}  // namespace halvek
