// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Color.h>
#include <halvekutils/base/Export.h>
#include <halvekutils/platform/Desktop.h>
#include <halvekutils/platform/Services.h>
#include <halvekutils/selection/SelectionList.h>
#include <halvekutils/text/Placement.h>

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace halvek {

/// What a selection dialog is asked to show.
struct SelectionRequest {
    std::u16string listName;             ///< plain text, the caption
    std::u16string allValues;            ///< the server's list, see SelectionList
    std::u16string selectedValues;       ///< the codes chosen so far, parted by ","
    std::u16string typedCharacter = {};  ///< what the user typed before the dialog opened
    bool doNotIncludeDeleted = false;    ///< leaves deleted entries out
    PopupAnchor anchor = {};             ///< where it is asked to open
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

/// The box of typed codes as the rules want it. Positions count characters from 0.
struct TypedCodesBox {
    std::u16string text;        ///< what it holds
    std::int32_t caret = 0;     ///< how many characters stand before the caret
    std::int32_t selected = 0;  ///< how many characters behind the caret are selected
    bool enabled = true;        ///< what stands in a disabled box was not typed by the user
};

/// The description of the entry that stands for all codes.
inline constexpr std::u16string_view kAllCodesName = u" *** ALL CODES *** ";

/// The font of the check and code rows.
inline FontSpec CodeFont() {
    return {u"tahoma", 8};
}
/// The font of the description rows.
inline FontSpec DescriptionFont() {
    return {u"tahoma", 7};
}

/// One cell of the grid, as it is drawn.
struct SelectCell {
    /// What a cell is.
    enum class Kind {
        Header,       ///< row 0: the list's name and the choice
        Check,        ///< the tick of an entry
        Code,         ///< the code of an entry
        Description,  ///< the description of an entry
        Plain,        ///< nothing
    };
    /// Where the text stands in the cell.
    enum class Alignment {
        Left = 0,    ///< at the left edge
        Centre = 1,  ///< in the middle
    };

    Kind kind = Kind::Plain;          ///< what the cell is
    std::u16string text;              ///< plain text; a header's may be as long as the whole choice
    bool checked = false;             ///< of a Check cell
    std::u16string toolTip;           ///< empty for none
    std::optional<Color> background;  ///< nothing for the desktop's own
    std::optional<Color> textColor;   ///< nothing for the desktop's own
    Alignment alignment = Alignment::Left;  ///< where the text stands
    FontSpec font;                          ///< of the text
};

/// A cell of the grid: row 0 is the header, columns run from 1 to 10.
struct CellPlace {
    std::int32_t row = 0;     ///< 0 for the header
    std::int32_t column = 0;  ///< 1 to 10

    friend bool operator==(const CellPlace&, const CellPlace&) = default;
};

/// The rules of the selection dialog, without a window: which entries are ticked, what the box of
/// typed codes holds, what its keys, clicks and buttons do and what comes back.
///
/// A window draws the cells that are visible, mirrors the box and forwards its events. Faults are
/// written to the log as "ERR in frmSelectGrid." and the routine's name; the dialog stays usable.
class HALVEK_EXPORT SelectGrid {
  public:
    /// Shows a message and returns when the user has closed it.
    using MessageSink = std::function<void(const SelectionMessage&)>;

    /// Reads the list; throws what goes wrong. Prepare comes next.
    SelectGrid(SelectionRequest request, Services& session, MessageSink showMessage);
    ~SelectGrid();
    SelectGrid(const SelectGrid&) = delete;
    SelectGrid& operator=(const SelectGrid&) = delete;

    /// Ticks the incoming codes, with a message for each that the list lacks, and puts the typed
    /// character into the box. To be called once, before the dialog is shown.
    void Prepare();

    /// Called after every change that the window shows, before every message that is raised, and
    /// once when the dialog ends.
    std::function<void()> Changed;

    // What the window shows

    /// The title bar's text.
    std::u16string Caption() const;
    /// The text of row 0: the list's name and the choice.
    std::u16string HeaderText() const;
    /// The number of rows below the header, three for each band of ten entries.
    std::int32_t RowCount() const { return list_.RowCount(); }
    /// The number of columns, 10.
    static constexpr std::int32_t ColumnCount() { return SelectionList::kColumns; }
    /// The cell at row 0 to RowCount(), column 1 to 10; a plain one for any other place.
    SelectCell Cell(std::int32_t row, std::int32_t column) const;
    /// Code, description, ticked or not and deleted or not in words; empty for a blank cell.
    std::u16string AccessibleText(std::int32_t row, std::int32_t column) const;
    /// The length of the longest code without the blanks around it.
    std::int32_t LongestCodeLength() const { return list_.LongestCodeLength(); }
    /// Where the dialog is asked to open.
    const PopupAnchor& Anchor() const { return request_.anchor; }

    /// The box of typed codes.
    const TypedCodesBox& Box() const { return box_; }
    /// Grows whenever the rules, not the user, change the box: the window then mirrors it.
    std::uint32_t BoxVersion() const { return boxVersion_; }

    // The current cell

    /// The entry that keys act on, the pseudo-entry at first; 0 when no band is shown.
    std::int32_t CurrentEntry() const { return current_; }
    /// Its check cell; its code and its description stand below.
    CellPlace CurrentCell() const { return PlaceOf(current_); }
    /// The entry of a cell; 0 in the header, past the last entry and outside the grid.
    std::int32_t EntryAt(std::int32_t row, std::int32_t column) const;
    /// The check cell of an entry; row and column 0 for entry 0.
    static CellPlace PlaceOf(std::int32_t entry);

    // What the user does in the grid

    /// A cell is clicked: row 0 accepts the choice as it is, any other toggles its entry and makes
    /// it current. A blank cell does nothing.
    void ClickCell(std::int32_t row, std::int32_t column);
    /// Accepts the choice as it is, without a look at what was typed.
    void ClickHeader();

    /// The keys that the grid knows.
    enum class Key {
        Enter,     ///< OK
        Space,     ///< ticks the current entry or takes its tick off
        PageUp,    ///< as many bands up as are in view
        PageDown,  ///< as many bands down as are in view
        End,       ///< the last entry
        Home,      ///< the first entry, that of all codes
        Left,      ///< the entry before
        Up,        ///< the band above
        Right,     ///< the entry after
        Down,      ///< the band below
    };

    /// A key pressed in the grid. Moves go from one entry with a code to another; left and right
    /// cross the bands.
    /// @param key  the key
    /// @param bandsOnPage  how many bands the grid shows at a time
    void KeyDown(Key key, std::int32_t bandsOnPage = 1);

    /// A character typed in the grid without Ctrl or Alt: moves to the next entry whose code or
    /// description begins with what was typed, letter case ignored, and does nothing else.
    /// @param letter  the character
    /// @param continues  it follows closely on the last one and is added to it
    void TypeLetter(char16_t letter, bool continues);

    // What the user does in the box of typed codes

    /// The user has changed the text. Emptying it clears every tick.
    void EditBox(TextIn text, std::int32_t caret, std::int32_t selected = 0);

    /// How the box of typed codes got the focus.
    enum class BoxFocus {
        Entered,   ///< by the mouse, a key or a shortcut
        Restored,  ///< the window became active again, or put the focus back after a refusal
    };
    /// The box has the focus: what it holds is checked when the user entered it, except the first
    /// time after opening with a typed character.
    void FocusBox(BoxFocus how);

    /// The comma key is released in the box: what it holds is checked and ticked.
    void ReleaseComma();

    /// The user wants to leave the box; false when what it holds is refused. Not to be asked by
    /// Cancel, Escape and the close box.
    bool ValidateBox();

    /// Whether the user can type into the box; true at first.
    void EnableBox(bool enabled);

    // How it ends

    /// OK, or Enter in the box: ends the dialog unless what the box holds is refused.
    void Accept();
    /// Cancel, Escape or the close box: the caller keeps the selection that it gave.
    void Cancel();
    /// The modal loop ended with the dialog still open.
    void Abandon() { Cancel(); }

    /// False once the dialog has ended.
    bool IsOpen() const { return open_; }
    /// True when the user accepted without a change.
    bool Cancelled() const { return cancelled_; }
    /// "CANCEL" when Cancelled(), else the chosen codes, parted by ",".
    std::u16string ReturnValue() const;

    /// The right edge that the dialog was asked for, in whole twips; -1 when none was given.
    std::int32_t OriginalLeft() const { return request_.anchor.left.value_or(-1); }
    /// The bottom edge that it was asked for above its target, likewise.
    std::int32_t OriginalTop() const { return request_.anchor.topUp.value_or(-1); }

  private:
    enum class EntryCheck { Accepted, AcceptedBefore, Refused };

    SelectCell MakeCell(std::int32_t row, std::int32_t column) const;
    void FillIn(SelectCell& cell, std::int32_t entry) const;

    void Toggle(std::int32_t entry);
    void SelectAll(bool on);
    void AddToChoice(std::u16string_view code);
    void RemoveFromChoice(std::u16string_view code);
    void SetChoice(std::u16string codes);
    void TakeBoxAsChoice(bool emptied);
    void CloseChoice();
    void ClearMarks();

    bool CheckTypedCodes();
    bool RunCheck();
    bool HasGoodForm();
    bool RefuseForm(std::size_t start, std::size_t length);
    bool MarkTypedCodes();
    EntryCheck CheckEntry(std::u16string_view code);
    void RefuseCode(std::u16string_view code);

    std::u16string_view Choice() const { return boxIsChoice_ ? box_.text : choice_; }
    void SetBoxText(std::u16string text);
    void SelectInBox(std::size_t start, std::size_t length);

    std::int32_t NearestWithCode(std::int32_t entry, std::int32_t step) const;
    void MoveTo(std::int32_t entry, std::int32_t step);
    void MoveAcrossBands(std::int32_t bands);
    std::int32_t FindByStart(std::u16string_view start, std::int32_t from) const;
    void SetCurrent(std::int32_t entry);

    void Tell(const SelectionMessage& message);
    void NotifyChanged() const;
    void End(bool cancelled);

    template <class Result, class Body>
    Result Logged(std::u16string_view routine, Result neutral, const Body& body) const;

    SelectionRequest request_;
    Services& session_;
    MessageSink showMessage_;
    SelectionList list_;
    std::vector<bool> marks_;  ///< which entries are ticked, 0 to the last that is shown
    TypedCodesBox box_;
    std::uint32_t boxVersion_ = 0;
    std::u16string choice_;    ///< the pending result, while the box holds another text
    bool boxIsChoice_ = true;  ///< the box holds the pending result itself
    bool hasComma_ = false;    ///< a code with a comma in it was chosen
    std::int32_t current_ = 0;
    std::u16string searched_;
    bool changed_ = false;
    bool busy_ = false;
    bool openedByTyping_ = false;
    bool cancelled_ = false;
    bool open_ = true;
};

}  // namespace halvek
