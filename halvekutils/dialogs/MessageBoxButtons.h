// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Internal.h>
#include <halvekutils/dialogs/MessageBoxTypes.h>

#include <array>
#include <string_view>

namespace halvek {

/// What a button set shows and how a box with it closes without a button.
struct MessageBoxButtonSet {
    ButtonsChoice choice;                   ///< the set this row describes
    std::array<MbMsgBoxResult, 3> results;  ///< of the buttons from the left; kNotAnswered: hidden
    bool hasCloseBox;                       ///< whether the title bar has a close box
    bool escapeCloses;                      ///< whether Escape on a button acts as the close box
    std::u16string_view closeResult;  ///< the result text of the close box, "" for the default
};

/// The row of a button set; mbOkOnly's for an unknown value.
const MessageBoxButtonSet& ButtonSetOf(ButtonsChoice choice);

/// How many buttons a set shows: 0 to 3.
HALVEK_INTERNAL int ButtonCount(ButtonsChoice choice);

/// The caption of the button with this result, with "&" before its accelerator; empty when no
/// button has this result.
std::u16string_view CaptionOf(MbMsgBoxResult result);

}  // namespace halvek
