// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Compiler.h>

#include <cstdint>

namespace halvek {

/// The button set of a message box, left to right. An unknown value counts as mbOkOnly.
enum ButtonsChoice : std::int32_t {
    mbOkOnly = 0,            ///< OK
    mbOkCancel = 1,          ///< OK, Cancel
    mbAbortRetryIgnore = 2,  ///< Abort, Retry, Ignore
    mbYesNoCancel = 3,       ///< Yes, No, Cancel
    mbYesNo = 4,             ///< Yes, No
    mbRetryCancel = 5,       ///< Retry, Cancel
    mbSaveDontSave = 6,      ///< Save, Don't Save
    mbNoButtons = 7,         ///< none: closed by Enter, Escape, the close box or its countdown
    mbYesHelp = 8,           ///< Yes, Help
    mbYesNoHelp = 9,         ///< Yes, No, Help
    mbOkHelp = 10,           ///< OK, Help
};

/// How a message box was answered.
enum MbMsgBoxResult : std::int32_t {
    mbOK = 1,        ///< OK; also a box without buttons that was closed
    mbCancel = 2,    ///< Cancel, or the close box or Escape of a box that has Cancel
    mbAbort = 3,     ///< Abort
    mbRetry = 4,     ///< Retry
    mbIgnore = 5,    ///< Ignore
    mbYes = 6,       ///< Yes; also the close box of mbYesHelp
    mbNo = 7,        ///< No
    mbSave = 8,      ///< Save
    mbDontSave = 9,  ///< Don't Save
    mbHelp = 10,     ///< Help, which closes the box too
};

/// The result of a box that its countdown closed.
inline constexpr MbMsgBoxResult kClosedByCountdown = static_cast<MbMsgBoxResult>(99);

/// The result when nobody answered: the box could not be shown, or the application ended while a
/// box without a close button was open. No button gives it.
inline constexpr MbMsgBoxResult kNotAnswered = static_cast<MbMsgBoxResult>(0);

/// The picture of a message box. A value outside the list shows none.
enum IconChoice : std::int32_t {
    mbNoIcon = 0,               ///< no picture
    mbQuestion = 1,             ///< a question mark
    mbInformation = 2,          ///< an "i"
    mbExclamation = 3,          ///< an exclamation mark
    mbCritical = 4,             ///< a cross on a red disc
    mbTrash = 5,                ///< a waste bin, for deleting
    mbPrint = 6,                ///< a printer
    mbReminder = 7,             ///< a bell, for reminders
    mbExclamationCritical = 8,  ///< an exclamation mark on a red stop sign
};

/// The background of a message box. A value outside the list becomes mbWhite.
enum ColorChoice : std::int32_t {
    mbWhite = 1,      ///< white, whatever the desktop's scheme is
    mbGray = 2,       ///< the desktop's button face
    mbSkinColor = 3,  ///< the colours given to Utils::InitPrefs
};

/// The font of a message box's text. 0 and values above the list become mb9; a negative value keeps
/// the font as designed.
enum FontSizeChoice : std::int32_t {
    mb8 = 1,   ///< 8 points
    mb9 = 2,   ///< 9 points, the default
    mb10 = 3,  ///< 10 points
    mb11 = 4,  ///< 11 points
    mb12 = 5,  ///< 12 points
    mb5 = 6,   ///< 9 points in the fixed-pitch face, for text in columns
    mb6 = 7,   ///< 6 points
    mb7 = 8,   ///< 7 points
    mb14 = 9,  ///< 14 points
};

}  // namespace halvek
