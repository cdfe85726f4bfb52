// SPDX-License-Identifier: MIT
#include <halvekutils/base/Existing.h>
#include <halvekutils/currency/AmountRange.h>
#include <halvekutils/currency/CurrencyEvents.h>
#include <halvekutils/currency/CurrencyHandlers.h>
#include <halvekutils/currency/CurrencyKeys.h>
#include <halvekutils/platform/Desktop.h>
#include <halvekutils/platform/Guard.h>

#include <string>

namespace halvek {

namespace {

/// The names under which an event is logged.
struct EventName {
    const char16_t* unsignedField;
    const char16_t* signedField;
};

constexpr EventName kKeyPress = {u"OnCurrencyCtrKeyPress", u"OnNegCurrencyCtrKeyPress"};
constexpr EventName kChange = {u"OnCurrencyCtrChange", u"OnNegCurrencyCtrChange"};
constexpr EventName kValidate = {u"OnCurrencyCtrValidate", u"OnNegCurrencyCtrValidate"};
// These two serve both kinds of field.
constexpr EventName kGotFocus = {u"OnCurrencyCtrGotFocus", u"OnCurrencyCtrGotFocus"};
constexpr EventName kValidateRange = {u"OnCurrencyCtrValidateRange", u"OnCurrencyCtrValidateRange"};

template <class Body>
void Handle(const EventName& name, AmountSign sign, Services& session,
            const std::shared_ptr<TextControl>& ctr, const Body& body) {
    const auto prefix = [&] {
        const bool isSigned = sign == AmountSign::Signed;
        return std::u16string(u"Error in HalvekUtils/Utils/") +
               (isSigned ? name.signedField : name.unsignedField) + u"  ";
    };
    const auto log = [&session](TextIn line) { session.LogError(line); };
    Guarded(OnFault::Quiet, prefix, log, [&] {
        Desktop::RequireItsThread();
        body(Existing(ctr, u"control"));
    });
}

}  // namespace

// The arguments are copies: a control's change handler may destroy the caller's own pointer.

void CurrencyEvents::PressKey(std::shared_ptr<TextControl> ctr, std::int16_t& keyAscii) const {
    Handle(kKeyPress, sign_, session_, ctr,
           [&](TextControl& control) { PressCurrencyKey(control, keyAscii, sign_); });
}

void CurrencyEvents::Change(std::shared_ptr<TextControl> ctr) const {
    Handle(kChange, sign_, session_, ctr,
           [&](TextControl& control) { CutDecimals(control, sign_); });
}

void CurrencyEvents::Enter(std::shared_ptr<TextControl> ctr) const {
    Handle(kGotFocus, sign_, session_, ctr, EnterCurrencyField);
}

void CurrencyEvents::Leave(std::shared_ptr<TextControl> ctr, bool& cancel) const {
    Handle(kValidate, sign_, session_, ctr,
           [&](TextControl& control) { LeaveCurrencyField(control, cancel, sign_); });
}

void CurrencyEvents::CheckRange(std::shared_ptr<TextControl> ctr, TextIn strMin, TextIn strMax,
                                TextIn lblMin, TextIn lblMax, bool& cancel) const {
    Handle(kValidateRange, sign_, session_, ctr, [&](TextControl& control) {
        const auto complaint = RangeComplaint(strMin, strMax, lblMin, lblMax);
        if (!complaint) return;
        Desktop& desktop = Existing(Desktop::Installed(), u"desktop");
        desktop.ShowStockMessage(*complaint, StockIcon::Critical, session_.AppName());
        cancel = true;
        control.Text(u"");
    });
}

}  // namespace halvek
