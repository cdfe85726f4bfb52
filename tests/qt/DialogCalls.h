// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/NumericText.h>
#include <halvekutils/core/Utils.h>
#include <halvekutils/qt/QtControls.h>

#include <QWidget>

namespace halvek {

/// A call of each dialog, for what must hold for all of them.
struct DialogCall {
    const char* name;
    bool isBeside;       ///< a control of the host's
    TextIn givenClosed;  ///< what the host gets when the dialog is closed
    std::u16string (*open)(Utils& utils, QWidget& target, const std::shared_ptr<OwnerForm>& form);
};

inline const DialogCall kDialogCalls[] = {
    {"message box", false, u"2",
     [](Utils& utils, auto&, auto&) {
         return IntegerText(utils.ShowMsgBox(u"Go on?", mbOkCancel, mbNoIcon, u"Visits"));
     }},
    {"calculator", false, u"", [](Utils& utils, auto&, auto&) { return utils.Calculate(u"12"); }},
    {"calendar", true, u"",
     [](Utils& utils, auto& target, auto& form) {
         return utils.ShowCalendarAndCalculateCoordinates(Beside(&target), u"", u"", form);
     }},
    {"palette", true, u"",
     [](Utils& utils, auto& target, auto& form) {
         utils.InitPrefs(StringArray(1, {u"255", u"0", u"65280", u"0"}), 0, 0, 0, 0);
         return utils.ShowColorAndCalculateCoordinates(Beside(&target), form);
     }},
    {"selection", true, u"A",
     [](Utils& utils, auto& target, auto& form) {
         return utils.ShowSelectionAndCalculateCoordinates(u"Codes", u"H:A\tAlpha\t0:", u"A",
                                                           Beside(&target), form);
     }},
};

}  // namespace halvek
