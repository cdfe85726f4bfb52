// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Color.h>
#include <halvekutils/base/Export.h>
#include <halvekutils/base/TextIn.h>
#include <halvekutils/base/XlibOff.h>
#include <halvekutils/dialogs/MessageBoxLayout.h>
#include <halvekutils/dialogs/MessageBoxTypes.h>
#include <halvekutils/platform/Controls.h>
#include <halvekutils/platform/Desktop.h>
#include <halvekutils/platform/Dialog.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace halvek {

class Services;
struct MessageBoxButtonSet;

/// What a message box is asked to show.
struct MessageBoxRequest {
    std::u16string prompt;             ///< plain text; CR LF starts a new line
    ButtonsChoice buttons = mbOkOnly;  ///< the button set
    IconChoice icon = mbNoIcon;        ///< the picture
    std::u16string title;              ///< empty for the application's name
    ColorChoice background = mbWhite;  ///< the colours
    FontSizeChoice fontSize = mb9;     ///< the font
    bool fontBold = false;             ///< a bold font
    std::int32_t closeAfterNSec = 0;   ///< seconds of the countdown; below 1 there is none
    std::shared_ptr<OwnerForm> owner = nullptr;  ///< centred on and refreshed; null for none
};

/// The colours of a message box; an absent one is the desktop's own.
struct MessageBoxColors {
    Color background;                 ///< of the form, both frames and the text's background
    std::optional<Color> text;        ///< of the prompt
    std::optional<Color> buttonFace;  ///< of the buttons
};

/// The font that a choice means: mb9 for 0 and for values above the list, any other value as it is.
HALVEK_EXPORT FontSizeChoice NormalizedFontSize(FontSizeChoice fontSize);
/// The background that a choice means: mbWhite for a value outside the list.
HALVEK_EXPORT ColorChoice NormalizedBackground(ColorChoice background);

/// The rules of one message box, without a window: what it shows, what its keys and buttons do and
/// how it ends. A window draws it and forwards its events.
///
/// The result is the number of a MbMsgBoxResult; empty counts as 1.
class HALVEK_EXPORT MessageBox : public Dialog {
  public:
    /// Takes the session's name and skin, and measures texts and the screen on this desktop.
    MessageBox(MessageBoxRequest request, const Services& session, const Desktop& desktop);
    ~MessageBox() override;

    // What the window shows

    /// The text of the box.
    TextIn Prompt() const { return request_.prompt; }
    /// The title bar's text, with the countdown once it has started.
    TextIn Caption() const { return caption_; }
    /// The caption of button 0, 1 or 2; empty for a hidden one.
    TextIn ButtonCaption(int index) const;
    /// The picture's number from 1, or 0 for none.
    int Picture() const;
    /// The button set; mbOkOnly for an unknown value.
    ButtonsChoice Buttons() const;
    /// The font of the text.
    const FontSpec& Font() const { return font_; }
    /// The colours of the box.
    MessageBoxColors Colors() const;
    /// The sizes and places of its parts.
    const MessageBoxLayout& Layout() const { return layout_; }
    /// Whether the title bar has a close box.
    bool HasCloseBox() const;
    /// A position on the screen in twips.
    struct Position {
        std::int32_t left;  ///< of the left edge
        std::int32_t top;   ///< of the top edge
    };
    /// The screen position that centres the box on its owner; absent without one.
    std::optional<Position> CentredOnOwner() const;

    /// The id of the owner's window; 0 without one.
    std::uint32_t OwnerWindow() const;
    /// How far the text is scrolled: 0 at its start, down to minus the layout's scroll range.
    std::int32_t ScrollOffset() const { return scrollOffset_; }
    /// The title, the text and the buttons as one text for the clipboard.
    std::u16string CopyText() const;

    /// Call when the box is on the screen and Show has returned: refreshes the owner.
    void ShownModeless();

    /// Whether the box will close itself.
    bool CountdownRunning() const { return IsOpen() && countdownRunning_; }
    /// How many seconds the countdown takes in all; 0 without one.
    std::int32_t CountdownSeconds() const { return countdownTotal_; }
    /// How many of them are left.
    std::int32_t SecondsLeft() const { return countdownTotal_ - countdownElapsed_; }

    // What the user does

    /// Presses the button that gives a result. Throws InvalidArgument when the set lacks it.
    void Press(MbMsgBoxResult button);
    /// Presses button 0, 1 or 2 from the left. Throws SubscriptOutOfRange when it is hidden.
    void Press(int index);

    /// What a window does about a key.
    enum class KeyAction {
        None,     ///< the key goes on to the button
        Handled,  ///< the key is done with
        Copy,     ///< the selection goes to the clipboard, or else CopyText
    };
    /// The keys held down with another, which add up.
    enum KeyModifier : unsigned {
        kNoModifier = 0,  ///< none
        kShift = 1,       ///< Shift
        kControl = 2,     ///< Ctrl
        kAlt = 4,         ///< Alt, or the key with the desktop's mark
    };

    /// A key pressed while a button has the focus. Key codes of letters are those of their
    /// capitals, Escape is 27. Returns Copy when the window must copy text to the clipboard.
    KeyAction KeyDown(int keyCode, unsigned modifiers);

    /// A character typed where no control has the focus: Enter (13) and Escape (27) close the box.
    void FormKeyPress(int keyAscii);

    /// One second has passed.
    void Tick();

    /// Scroll button 0 moves the text up, showing later lines; button 1 moves it down.
    void PressScroll(int index);
    /// Scrolls to later (positive) or earlier lines, as far as the text goes.
    void ScrollBy(std::int32_t twips);

    /// The result as a number, 1 when it is empty. Reading it clears the result.
    MbMsgBoxResult ReturnedValue();

  private:
    void OnClose() override;
    void OnAbandon() override;
    void CloseWith(std::u16string_view result);
    void RefreshOwner() const;

    MessageBoxRequest request_;
    const MessageBoxButtonSet* set_;
    FontSpec font_;
    Color skinColor_;
    Color skinTextColor_;
    MessageBoxLayout layout_;
    std::u16string title_;
    std::u16string caption_;
    std::int32_t scrollOffset_ = 0;
    std::int32_t countdownTotal_ = 0;
    std::int32_t countdownElapsed_ = 0;
    bool countdownRunning_ = false;
};

}  // namespace halvek

#include <halvekutils/base/XlibOn.h>
