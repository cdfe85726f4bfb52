// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Internal.h>
#include <halvekutils/dialogs/MessageBoxTypes.h>

#include <array>
#include <string_view>

namespace halvek {

/// What a button set shows and how it can be left without a button.
struct MessageBoxButtonSet {
    ButtonsChoice choice;                   ///< the set that this row is about
    std::array<MbMsgBoxResult, 3> results;  ///< of the buttons from the left; kNotAnswered: hidden
    bool hasCloseBox;                       ///< whether the title bar has a close box
    bool escapeCloses;                      ///< whether Escape on a button acts as the close box
    std::u16string_view closeResult;  ///< the result text of the close box, "" for the default
};

/// The row of a button set; that of mbOkOnly for an unknown value.
const MessageBoxButtonSet& ButtonSetOf(ButtonsChoice choice);

/// How many buttons a set shows: 0 to 3.
HALVEK_INTERNAL int ButtonCount(ButtonsChoice choice);

/// The caption of the button with this result, its accelerator letter behind a "&"; empty for a
/// result of no button.
std::u16string_view CaptionOf(MbMsgBoxResult result);

}  // namespace halvek
