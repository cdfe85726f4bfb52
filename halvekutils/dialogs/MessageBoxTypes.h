// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace halvek {

/// The button set of a message box, left to right. An unknown value counts as mbOkOnly.
enum ButtonsChoice : std::int32_t {
    mbOkOnly = 0,
    mbOkCancel = 1,
    mbAbortRetryIgnore = 2,
    mbYesNoCancel = 3,
    mbYesNo = 4,
    mbRetryCancel = 5,
    mbSaveDontSave = 6,
    mbNoButtons = 7,
    mbYesHelp = 8,
    mbYesNoHelp = 9,
    mbOkHelp = 10,
};

/// How a message box was answered.
enum MbMsgBoxResult : std::int32_t {
    mbOK = 1,
    mbCancel = 2,
    mbAbort = 3,
    mbRetry = 4,
    mbIgnore = 5,
    mbYes = 6,
    mbNo = 7,
    mbSave = 8,
    mbDontSave = 9,
    mbHelp = 10,
};

/// The result of a box that its countdown closed.
inline constexpr MbMsgBoxResult kClosedByCountdown = static_cast<MbMsgBoxResult>(99);

/// The result when nobody answered: the box could not be shown, or the application ended while a
/// box without a close button was open. No button gives it.
inline constexpr MbMsgBoxResult kNotAnswered = static_cast<MbMsgBoxResult>(0);

/// The picture of a message box. A value outside the list shows none.
enum IconChoice : std::int32_t {
    mbNoIcon = 0,
    mbQuestion = 1,
    mbInformation = 2,
    mbExclamation = 3,
    mbCritical = 4,
    mbTrash = 5,
    mbPrint = 6,
    mbReminder = 7,
    mbExclamationCritical = 8,
};

/// The background of a message box. A value outside the list becomes mbWhite.
enum ColorChoice : std::int32_t {
    mbWhite = 1,
    mbGray = 2,       ///< the desktop's button face
    mbSkinColor = 3,  ///< the colours given to Utils::InitPrefs
};

/// The font of a message box's text. 0 and values above the list become mb9; a negative value
/// leaves the font as it is designed.
enum FontSizeChoice : std::int32_t {
    mb8 = 1,
    mb9 = 2,
    mb10 = 3,
    mb11 = 4,
    mb12 = 5,
    mb5 = 6,  ///< 9 points in the fixed-pitch face, for text in columns
    mb6 = 7,
    mb7 = 8,
    mb14 = 9,
};

}  // namespace halvek
