// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Export.h>
#include <halvekutils/base/TextIn.h>
#include <halvekutils/dialogs/MessageBoxTypes.h>
#include <halvekutils/platform/Desktop.h>

#include <array>
#include <cstdint>
#include <optional>

namespace halvek {

/// The sizes and places of a message box's parts, in twips.
struct MessageBoxLayout {
    Size form;          ///< with the window's frame
    Size inner;         ///< without it
    Rect messageFrame;  ///< frMSG, in the form
    Rect buttonFrame;   ///< frButtons, in the form, over the message frame
    Rect label;         ///< lblText, in the message frame, before scrolling
    Rect icon;          ///< Image1, in the form
    std::array<std::optional<Rect>, 3> buttons;  ///< arrCmd, in the button frame
    std::array<Rect, 2> scrollButtons;           ///< cmdUpDn, in the message frame
    bool canScroll = false;                      ///< whether the scroll buttons show
    std::int32_t viewHeight = 0;                 ///< how much of the label shows
    std::int32_t scrollRange = 0;                ///< how far the text can move up, to its last line

    /// The width beside the text in the message frame, scroll buttons included.
    static constexpr std::int32_t kTextMargin = 420;
    /// The width at which the text folds: a label of the least width is wider than its view.
    std::int32_t ViewWidth() const { return messageFrame.width - kTextMargin; }
};

/// What a message box's layout depends on besides the text meter.
struct MessageBoxContent {
    TextIn prompt;                     ///< the text
    FontSpec font;                     ///< its font
    ButtonsChoice buttons = mbOkOnly;  ///< the button set
    bool hasIcon = false;              ///< whether there is a picture
};

/// Lays out a message box on a screen, for a window frame that adds `frame` to its inner size.
HALVEK_EXPORT MessageBoxLayout LayOutMessageBox(const MessageBoxContent& content,
                                                const TextMeter& meter, Size screen, Size frame);

}  // namespace halvek
