// SPDX-License-Identifier: MIT
#include <halvekutils/base/Existing.h>
#include <halvekutils/base/NumericText.h>
#include <halvekutils/base/RuntimeError.h>
#include <halvekutils/controls/ControlHelpers.h>
#include <halvekutils/core/Session.h>
#include <halvekutils/core/UtilsPrivate.h>
#include <halvekutils/core/WayIn.h>

namespace halvek {

namespace {

HeldKeys KeysHeld() {
    Desktop::RequireItsThread();
    const Desktop* const desktop = Desktop::Installed();
    return desktop == nullptr ? HeldKeys{} : desktop->KeysHeld();
}

}  // namespace

// Headings

void Utils::UnhighlightHeading(const std::shared_ptr<HeadingControl>& EditCtr, bool UseBlack) {
    const auto unhighlight = [&](const std::shared_ptr<HeadingControl>& control) {
        halvek::UnhighlightHeading(control, UseBlack ? kBlack : TheSession().formTextColor);
    };
    EnteredVoid(*this, OnFault::Beep, u"Error in Utils.UnhighlightHeading ", unhighlight, EditCtr);
}

void Utils::HighlightHeading(const std::shared_ptr<HeadingControl>& EditCtr, bool,
                             std::int16_t iBorderStyle) {
    const auto highlight = [&](const std::shared_ptr<HeadingControl>& control) {
        const Session& state = TheSession();
        halvek::HighlightHeading(control, iBorderStyle, state.highlightBackColor,
                                 state.highlightForeColor);
    };
    EnteredVoid(*this, OnFault::Beep, u"Error in Utils.HighlightHeading ", highlight, EditCtr);
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
    EnteredVoid(*this, OnFault::Beep, u"Error in Utils.KillCloseButton ", [&] {
        if (Desktop* const desktop = Desktop::Installed()) desktop->RemoveCloseButton(hwnd);
    });
}

// Combo boxes

std::int32_t Utils::FindInCombo(const std::shared_ptr<ComboBox>& cboComboBox,
                                TextIn strStringToFind, bool blnPartialMatch, bool blnMatchCase,
                                bool blnShowErrors) {
    const auto self = shared_from_this();
    const auto find = [&](const std::shared_ptr<ComboBox>& box, const std::u16string& text) {
        return halvek::FindInCombo(box, text, blnPartialMatch, blnMatchCase);
    };
    try {
        return WithKept(find, cboComboBox, strStringToFind);
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
    const auto fill = [&](const std::u16string& items, const std::shared_ptr<ComboBox>& box) {
        halvek::FillCombo(box, items, bMaxLength);
        return true;
    };
    return Entered(*this, OnFault::Beep, u"Error in Utils.FillCombo ", false, fill, Items,
                   cboComboBox);
}

// Fonts

bool Utils::SetFontProperties(const std::shared_ptr<ControlFont>& ob, TextIn fontName,
                              float fontSize) {
    const auto set = [&](const std::shared_ptr<ControlFont>& font, const std::u16string& name) {
        return halvek::SetFontProperties(font, name, fontSize);
    };
    return Entered(*this, OnFault::Beep, u"Error in Utils.SetFontProperties ", false, set, ob,
                   fontName);
}

void Utils::GridSetFontObject(const std::shared_ptr<GridFont>& GridFontObject, TextIn FontCode) {
    const auto set = [](const std::shared_ptr<GridFont>& font, const std::u16string& code) {
        halvek::GridSetFontObject(font, code);
    };
    EnteredVoid(*this, OnFault::Beep, u"Error in Utils.GridSetFontObject ", set, GridFontObject,
                FontCode);
}

}  // namespace halvek
