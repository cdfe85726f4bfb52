// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Export.h>
#include <halvekutils/base/TextIn.h>
#include <halvekutils/base/XlibOff.h>
#include <halvekutils/controls/Placement.h>
#include <halvekutils/platform/Dialog.h>
#include <halvekutils/selection/ChosenCodes.h>
#include <halvekutils/selection/SelectCell.h>
#include <halvekutils/selection/SelectionCursor.h>
#include <halvekutils/selection/SelectionList.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace halvek {

class SelectionSearch;
class Services;

/// What a selection dialog is asked to show.
struct SelectionRequest {
    std::u16string listName;             ///< plain text, the caption
    std::u16string allValues;            ///< the server's list, see SelectionList
    std::u16string selectedValues;       ///< the codes chosen so far, separated by ","
    std::u16string typedCharacter = {};  ///< what the user typed before the dialog opened
    bool doNotIncludeDeleted = false;    ///< leaves deleted entries out
    PopupAnchor anchor = {};             ///< where it should open
};

/// A message that the dialog raises while it is open.
struct SelectionMessage {
    /// Its picture.
    enum class Icon {
        None,         ///< no picture
        Information,  ///< an "i"
    };

    std::u16string text;     ///< what it says
    Icon icon = Icon::None;  ///< its picture
    std::u16string title;    ///< empty for the application's name
};

/// The rules of the selection dialog, without a window: which entries are ticked, what the box of
/// typed codes holds, what its keys, clicks and buttons do and what comes back.
///
/// A window draws the cells that are visible, mirrors the box and forwards its events. Faults are
/// written to the log as "ERR in frmSelectGrid." and the routine's name; the dialog stays usable.
///
/// The result is "CANCEL" when Cancelled(), otherwise the chosen codes, separated by ","; after
/// Close, the ones that the caller gave.
class HALVEK_EXPORT SelectGrid : public Dialog {
  public:
    /// Shows a message and returns when the user has closed it.
    using MessageSink = std::function<void(const SelectionMessage&)>;

    /// Reads the list; throws any fault. Call Prepare next.
    SelectGrid(SelectionRequest request, Services& session, MessageSink showMessage);
    ~SelectGrid() override;

    /// Ticks the incoming codes, with a message for each that the list lacks, and puts the typed
    /// character into the box. Call it once, before the dialog is shown.
    void Prepare();

    // What the window shows

    /// The title bar's text.
    std::u16string Caption() const;
    /// The text of row 0: the list's name and the choice.
    std::u16string HeaderText() const;
    /// The number of rows below the header, three for each band of ten entries.
    std::int32_t RowCount() const { return list_.RowCount(); }
    /// The number of columns, 10.
    static constexpr std::int32_t ColumnCount() { return SelectionList::kColumns; }
    /// How many of them hold an entry, of a single band 5 at least.
    std::int32_t ShownColumns() const;
    /// The cell at row 0 to RowCount(), column 1 to 10; a plain one for any other place.
    SelectCell Cell(std::int32_t row, std::int32_t column) const;
    /// What screen readers call the entry: code and description; empty for a blank cell.
    std::u16string AccessibleText(std::int32_t row, std::int32_t column) const;
    /// The length of the longest code without the blanks around it.
    std::int32_t LongestCodeLength() const { return list_.LongestCodeLength(); }
    /// The longest descriptions; the widest is one of them in any font.
    std::vector<std::u16string_view> LongestDescriptions() const {
        return list_.LongestDescriptions();
    }
    /// Where the dialog should open.
    const PopupAnchor& Anchor() const { return request_.anchor; }

    /// The codes chosen so far.
    TextIn Choice() const { return codes_.Text(); }
    /// Their number and, a line each, the codes with their descriptions; empty without a choice.
    /// @param maxLines  how many codes are named; a last line counts the others
    std::u16string ChoiceInWords(std::size_t maxLines) const;
    /// Grows whenever an entry is ticked or unticked.
    std::uint32_t TicksVersion() const { return ticksVersion_; }
    /// The box of typed codes.
    const TypedCodesBox& Box() const { return codes_.Box(); }
    /// Grows whenever the rules, not the user, change the box; the window then copies it.
    std::uint32_t BoxVersion() const { return codes_.BoxVersion(); }

    // The current cell

    /// The entry that keys act on, at first the first ticked one or else the pseudo-entry; 0 when
    /// no band is shown. A code that is typed into the box and accepted becomes current.
    std::int32_t CurrentEntry() const { return cursor_.Entry(); }
    /// Its check cell; its code and its description are below.
    CellPlace CurrentCell() const { return CheckCellOf(CurrentEntry()); }

    // What the user does in the grid

    /// A cell is clicked: row 0 accepts the choice as it is, any other toggles its entry and makes
    /// it current. A blank cell does nothing.
    void ClickCell(std::int32_t row, std::int32_t column);
    /// Accepts the choice as it is, without checking what was typed.
    void ClickHeader();

    /// The keys that the grid knows.
    using Key = SelectionKey;

    /// A key pressed in the grid. Moves go from one entry with a code to another; left and right
    /// cross the bands.
    /// @param key  the key
    /// @param bandsOnPage  how many bands the grid shows at a time
    void KeyDown(Key key, std::int32_t bandsOnPage = 1);

    /// Goes to the next ticked entry, and on at the start of the list.
    void GoToNextTicked();

    // Finding an entry by its name

    /// Looks for a word in codes and descriptions, letter case and accents ignored, and goes to the
    /// best entry: one whose code begins with the word, else its description, else a word in
    /// either, else any; of several the first. Stays where it is when there is none or no word.
    void Find(TextIn word);
    /// Goes to the next entry that was found, or the one before, and on at the other end of the
    /// list.
    void FindNext(bool backwards);
    /// Ticks or unticks the current entry if it is one of those found; false, and nothing is
    /// ticked, if it is not.
    bool ToggleFound();
    /// How many entries were found.
    std::int32_t FoundCount() const;
    /// The place of the current entry among them, from 1; 0 when it is none of them.
    std::int32_t FoundPlace() const;

    // What the user does in the box of typed codes

    /// The user has changed the text. Emptying it clears every tick.
    void EditBox(TextIn text, std::int32_t caret, std::int32_t selected = 0);

    /// How the box of typed codes got the focus.
    enum class BoxFocus {
        Entered,   ///< by the mouse, a key or a shortcut
        Restored,  ///< the window became active again, or put the focus back after a refusal
    };
    /// The box has got the focus. If the user entered it, its text is checked, except the first
    /// time after opening with a typed character.
    void FocusBox(BoxFocus how);

    /// Call before the box is checked: small letters become capitals in each code that differs from
    /// one of the list in nothing else, unless another code matches it too.
    void CapitalizeCodes();

    /// The comma key is released in the box: its text is checked and ticked.
    void ReleaseComma();

    /// The user wants to leave the box; false when its text is refused. Not for Cancel, Escape and
    /// the close box.
    bool ValidateBox();

    /// Whether the user can type into the box; true at first.
    void EnableBox(bool enabled);

    // How it ends

    /// OK, or Enter in the box: ends the dialog, unless the box's text is refused.
    void Accept();
    /// True when the user accepted without a change.
    bool Cancelled() const { return cancelled_; }

    /// The right edge that the caller asked for, in whole twips; -1 when none was given.
    std::int32_t OriginalLeft() const { return request_.anchor.left.value_or(-1); }
    /// The bottom edge that the caller asked for above the target, likewise.
    std::int32_t OriginalTop() const { return request_.anchor.topUp.value_or(-1); }

  private:
    enum class EntryCheck { Accepted, AcceptedBefore, Refused };

    void OnClose() override;
    void Finish(std::u16string result);

    bool IsTicked(std::int32_t entry) const { return marks_[static_cast<std::size_t>(entry)]; }
    std::int32_t NextTicked(std::int32_t entry) const;
    std::int32_t LastChosenBeside(const std::vector<bool>& before) const;
    void Toggle(std::int32_t entry);
    void ToggleOne(std::int32_t entry, bool on);
    void ToggleAll(bool on);
    void ClearMarks() { marks_.assign(marks_.size(), false); }
    void ClearChoice();
    void GoTo(std::int32_t entry);

    bool CheckTypedCodes();
    bool RunCheck();
    bool HasGoodForm();
    bool RefuseForm(std::size_t start, std::size_t length);
    bool MarkTypedCodes();
    EntryCheck CheckEntry(std::u16string_view code);
    void RefuseCode(std::u16string_view code);

    void Tell(const SelectionMessage& message);

    template <class Value, class Body>
    Value Logged(std::u16string_view routine, Value neutral, const Body& body) const;

    SelectionRequest request_;
    Services& session_;
    MessageSink showMessage_;
    SelectionList list_;
    std::vector<bool> marks_;  ///< which entries are ticked, 0 to the last that is shown
    ChosenCodes codes_;
    SelectionCursor cursor_{list_};
    std::unique_ptr<SelectionSearch> search_;
    std::uint32_t ticksVersion_ = 0;
    bool changed_ = false;
    bool busy_ = false;
    bool openedByTyping_ = false;
    bool cancelled_ = false;
};

}  // namespace halvek

#include <halvekutils/base/XlibOn.h>
