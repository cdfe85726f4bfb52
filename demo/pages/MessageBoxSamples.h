// SPDX-License-Identifier: MIT
#pragma once

#include "Shown.h"

#include <halvekutils/dialogs/MessageBoxTypes.h>

#include <QString>

#include <cstdint>
#include <vector>

namespace frontdesk {

/// The arguments of Utils::ShowMsgBox.
struct BoxArguments {
    QString prompt;
    halvek::ButtonsChoice buttons = halvek::mbOkOnly;
    halvek::IconChoice icon = halvek::mbNoIcon;
    QString title;
    halvek::ColorChoice background = halvek::mbWhite;
    halvek::FontSizeChoice fontSize = halvek::mb9;
    bool fontBold = false;
    std::int32_t closeAfterNSec = 0;
};

/// A message box worth seeing, and its name in the page's list.
struct BoxSample {
    QString name;
    BoxArguments arguments;
};

/// One sample for each button set, in the order of their values.
std::vector<BoxSample> ButtonSetSamples();

/// Texts at the limits of the layout, in the order of kSpecialSample.
std::vector<BoxSample> SpecialSamples();
enum SpecialSample { kLongText, kWideText, kHugeText, kColumns, kBold, kCountdown, kLiteral };

// The enumerations as lists to choose from.

inline constexpr Named<halvek::ButtonsChoice> kButtonsNames[] = {
    {halvek::mbOkOnly, "mbOkOnly"},
    {halvek::mbOkCancel, "mbOkCancel"},
    {halvek::mbAbortRetryIgnore, "mbAbortRetryIgnore"},
    {halvek::mbYesNoCancel, "mbYesNoCancel"},
    {halvek::mbYesNo, "mbYesNo"},
    {halvek::mbRetryCancel, "mbRetryCancel"},
    {halvek::mbSaveDontSave, "mbSaveDontSave"},
    {halvek::mbNoButtons, "mbNoButtons"},
    {halvek::mbYesHelp, "mbYesHelp"},
    {halvek::mbYesNoHelp, "mbYesNoHelp"},
    {halvek::mbOkHelp, "mbOkHelp"},
};

inline constexpr Named<halvek::IconChoice> kIconNames[] = {
    {halvek::mbNoIcon, "mbNoIcon"},
    {halvek::mbQuestion, "mbQuestion"},
    {halvek::mbInformation, "mbInformation"},
    {halvek::mbExclamation, "mbExclamation"},
    {halvek::mbCritical, "mbCritical"},
    {halvek::mbTrash, "mbTrash"},
    {halvek::mbPrint, "mbPrint"},
    {halvek::mbReminder, "mbReminder"},
    {halvek::mbExclamationCritical, "mbExclamationCritical"},
};

inline constexpr Named<halvek::ColorChoice> kBackgroundNames[] = {
    {halvek::mbWhite, "mbWhite"},
    {halvek::mbGray, "mbGray"},
    {halvek::mbSkinColor, "mbSkinColor"},
};

inline constexpr Named<halvek::FontSizeChoice> kFontSizeNames[] = {
    {halvek::mb8, "mb8"},   {halvek::mb9, "mb9"},   {halvek::mb10, "mb10"},
    {halvek::mb11, "mb11"}, {halvek::mb12, "mb12"}, {halvek::mb5, "mb5"},
    {halvek::mb6, "mb6"},   {halvek::mb7, "mb7"},   {halvek::mb14, "mb14"},
};

inline constexpr Named<halvek::MbMsgBoxResult> kResultNames[] = {
    {halvek::kNotAnswered, "kNotAnswered"},
    {halvek::mbOK, "mbOK"},
    {halvek::mbCancel, "mbCancel"},
    {halvek::mbAbort, "mbAbort"},
    {halvek::mbRetry, "mbRetry"},
    {halvek::mbIgnore, "mbIgnore"},
    {halvek::mbYes, "mbYes"},
    {halvek::mbNo, "mbNo"},
    {halvek::mbSave, "mbSave"},
    {halvek::mbDontSave, "mbDontSave"},
    {halvek::mbHelp, "mbHelp"},
    {halvek::kClosedByCountdown, "kClosedByCountdown"},
};

}  // namespace frontdesk
