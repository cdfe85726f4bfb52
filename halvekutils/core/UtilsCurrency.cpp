// SPDX-License-Identifier: MIT
#include <halvekutils/base/RuntimeError.h>
#include <halvekutils/core/Platform.h>
#include <halvekutils/core/Session.h>
#include <halvekutils/core/Utils.h>
#include <halvekutils/currency/AmountRange.h>
#include <halvekutils/currency/CurrencyHandlers.h>
#include <halvekutils/currency/CurrencyKeys.h>
#include <halvekutils/platform/Guard.h>

namespace halvek {

namespace {

/// Handles an event of a control, which is kept alive meanwhile.
template <class Body>
void Handle(Utils& utils, const char16_t* member, const std::shared_ptr<TextControl>& ctr,
            const Body& body) {
    const std::shared_ptr<TextControl> control = ctr;
    const auto prefix = [member] {
        return std::u16string(u"Error in HalvekUtils/Utils/") + member + u"  ";
    };
    Guarded(OnFault::Quiet, prefix, utils, [&] {
        if (control == nullptr) throw RuntimeError(Fault::ObjectNotSet, u"control");
        body(*control);
    });
}

}  // namespace

std::int16_t Utils::CURRENCY_NUMDECIMALS() const {
    return kWholeDigits;
}
std::int16_t Utils::CURRENCY_NUMFRACT() const {
    return kFractionDigits;
}

void Utils::OnCurrencyCtrKeyPress(const std::shared_ptr<TextControl>& ctr, std::int16_t& KeyAscii) {
    Handle(*this, u"OnCurrencyCtrKeyPress", ctr, [&](TextControl& control) {
        PressCurrencyKey(control, KeyAscii, AmountSign::Unsigned);
    });
}

void Utils::OnNegCurrencyCtrKeyPress(const std::shared_ptr<TextControl>& ctr,
                                     std::int16_t& KeyAscii) {
    Handle(*this, u"OnNegCurrencyCtrKeyPress", ctr,
           [&](TextControl& control) { PressCurrencyKey(control, KeyAscii, AmountSign::Signed); });
}

void Utils::OnCurrencyCtrChange(const std::shared_ptr<TextControl>& ctr) {
    Handle(*this, u"OnCurrencyCtrChange", ctr,
           [](TextControl& control) { CutDecimals(control, AmountSign::Unsigned); });
}

void Utils::OnNegCurrencyCtrChange(const std::shared_ptr<TextControl>& ctr) {
    Handle(*this, u"OnNegCurrencyCtrChange", ctr,
           [](TextControl& control) { CutDecimals(control, AmountSign::Signed); });
}

void Utils::OnCurrencyCtrGotFocus(const std::shared_ptr<TextControl>& ctr) {
    Handle(*this, u"OnCurrencyCtrGotFocus", ctr,
           [](TextControl& control) { EnterCurrencyField(control); });
}

void Utils::OnCurrencyCtrValidate(const std::shared_ptr<TextControl>& ctr, bool& Cancel) {
    Handle(*this, u"OnCurrencyCtrValidate", ctr, [&](TextControl& control) {
        LeaveCurrencyField(control, Cancel, AmountSign::Unsigned);
    });
}

void Utils::OnNegCurrencyCtrValidate(const std::shared_ptr<TextControl>& ctr, bool& Cancel) {
    Handle(*this, u"OnNegCurrencyCtrValidate", ctr,
           [&](TextControl& control) { LeaveCurrencyField(control, Cancel, AmountSign::Signed); });
}

void Utils::OnCurrencyCtrValidateRange(const std::shared_ptr<TextControl>& ctr, TextIn strMin,
                                       TextIn strMax, TextIn lblMin, TextIn lblMax, bool& Cancel) {
    const auto self = shared_from_this();
    Handle(*this, u"OnCurrencyCtrValidateRange", ctr, [&](TextControl& control) {
        const auto complaint = RangeComplaint(strMin, strMax, lblMin, lblMax);
        if (!complaint) return;
        Platform::Installed().ShowStockMessage(*complaint, StockIcon::Critical,
                                               TheSession().appName);
        Cancel = true;
        control.Text(u"");
    });
}

}  // namespace halvek
