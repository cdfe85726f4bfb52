// SPDX-License-Identifier: MIT
#include <halvekutils/base/Existing.h>
#include <halvekutils/base/NumericText.h>
#include <halvekutils/base/RuntimeError.h>
#include <halvekutils/controls/ControlHelpers.h>
#include <halvekutils/core/Session.h>
#include <halvekutils/core/UtilsPrivate.h>
#include <halvekutils/platform/Desktop.h>
#include <halvekutils/platform/Guard.h>

namespace halvek {

namespace {

HeldKeys KeysHeld() {
    const Desktop* const desktop = Desktop::Installed();
    return desktop == nullptr ? HeldKeys{} : desktop->KeysHeld();
}

}  // namespace

// Headings

void Utils::UnhighlightHeading(const std::shared_ptr<HeadingControl>& EditCtr, bool UseBlack) {
    Guarded(OnFault::Beep, u"Error in Utils.UnhighlightHeading ", *this, [&] {
        halvek::UnhighlightHeading(EditCtr, UseBlack ? kBlack : TheSession().formTextColor);
    });
}

void Utils::HighlightHeading(const std::shared_ptr<HeadingControl>& EditCtr, bool,
                             std::int16_t iBorderStyle) {
    Guarded(OnFault::Beep, u"Error in Utils.HighlightHeading ", *this, [&] {
        const Session& state = TheSession();
        halvek::HighlightHeading(EditCtr, iBorderStyle, state.highlightBackColor,
                                 state.highlightForeColor);
    });
}

// Keys

bool Utils::ShiftPressed() const {
    return Quietly(false, [] { return KeysHeld().shift; });
}
bool Utils::AltPressed() const {
    return Quietly(false, [] { return KeysHeld().alt; });
}
bool Utils::CtrlPressed() const {
    return Quietly(false, [] { return KeysHeld().ctrl; });
}

bool Utils::IsLookupKey(std::int16_t CodeKey) const {
    return !ConvertLookupKeyToSearchBy(CodeKey).empty();
}

std::u16string Utils::ConvertLookupKeyToSearchBy(std::int16_t CodeKey) const {
    const SystemPrefs& prefs = Existing(d_->systemPrefs, u"system preferences");
    if (CodeKey == static_cast<std::int16_t>(prefs.LookupKey())) return u"1";
    if (CodeKey == static_cast<std::int16_t>(prefs.LookupKey1())) return u"2";
    return {};
}

// Windows

void Utils::KillCloseButton(std::int32_t hwnd) {
    Guarded(OnFault::Beep, u"Error in Utils.KillCloseButton ", *this, [&] {
        if (Desktop* const desktop = Desktop::Installed()) desktop->RemoveCloseButton(hwnd);
    });
}

// Combo boxes

std::int32_t Utils::FindInCombo(const std::shared_ptr<ComboBox>& cboComboBox,
                                TextIn strStringToFind, bool blnPartialMatch, bool blnMatchCase,
                                bool blnShowErrors) {
    const auto self = shared_from_this();
    try {
        return halvek::FindInCombo(cboComboBox, strStringToFind, blnPartialMatch, blnMatchCase);
    } catch (const std::exception& caught) {
        return Quietly(-1, [&] {
            const RuntimeError fault = AsRuntimeError(caught);
            const std::u16string number = IntegerText(fault.Number());
            LogError(u" | Function: FindInCombo | Error: #" + number);
            if (blnShowErrors) {
                ShowMsgBox(u"The list could not be searched.\r\nError " + number + u": " +
                               fault.Description(),
                           mbOkOnly, mbExclamation, AppName());
            }
            return -1;
        });
    }
}

bool Utils::FillCombo(TextIn Items, const std::shared_ptr<ComboBox>& cboComboBox, bool bMaxLength) {
    return Guarded(OnFault::Beep, u"Error in Utils.FillCombo ", *this, false, [&] {
        halvek::FillCombo(cboComboBox, Items, bMaxLength);
        return true;
    });
}

// Fonts

bool Utils::SetFontProperties(const std::shared_ptr<ControlFont>& ob, TextIn fontName,
                              float fontSize) {
    return Guarded(OnFault::Beep, u"Error in Utils.SetFontProperties ", *this, false,
                   [&] { return halvek::SetFontProperties(ob, fontName, fontSize); });
}

void Utils::GridSetFontObject(const std::shared_ptr<GridFont>& GridFontObject, TextIn FontCode) {
    Guarded(OnFault::Beep, u"Error in Utils.GridSetFontObject ", *this,
            [&] { halvek::GridSetFontObject(GridFontObject, FontCode); });
}

}  // namespace halvek
