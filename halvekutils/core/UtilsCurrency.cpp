// SPDX-License-Identifier: MIT
#include <halvekutils/core/Session.h>
#include <halvekutils/core/Utils.h>
#include <halvekutils/currency/CurrencyEvents.h>

namespace halvek {

namespace {

CurrencyEvents Events(AmountSign sign = AmountSign::Unsigned) {
    return CurrencyEvents(sign, TheSession());
}

}  // namespace

std::int16_t Utils::CURRENCY_NUMDECIMALS() const {
    return kWholeDigits;
}
std::int16_t Utils::CURRENCY_NUMFRACT() const {
    return kFractionDigits;
}

// CurrencyEvents is the way in here: it checks the thread and holds the control. The session, which
// it works on, is never destroyed.

void Utils::OnCurrencyCtrKeyPress(const std::shared_ptr<TextControl>& ctr, std::int16_t& KeyAscii) {
    Events().PressKey(ctr, KeyAscii);
}
void Utils::OnNegCurrencyCtrKeyPress(const std::shared_ptr<TextControl>& ctr,
                                     std::int16_t& KeyAscii) {
    Events(AmountSign::Signed).PressKey(ctr, KeyAscii);
}

void Utils::OnCurrencyCtrChange(const std::shared_ptr<TextControl>& ctr) {
    Events().Change(ctr);
}
void Utils::OnNegCurrencyCtrChange(const std::shared_ptr<TextControl>& ctr) {
    Events(AmountSign::Signed).Change(ctr);
}

void Utils::OnCurrencyCtrGotFocus(const std::shared_ptr<TextControl>& ctr) {
    Events().Enter(ctr);
}

void Utils::OnCurrencyCtrValidate(const std::shared_ptr<TextControl>& ctr, bool& Cancel) {
    Events().Leave(ctr, Cancel);
}
void Utils::OnNegCurrencyCtrValidate(const std::shared_ptr<TextControl>& ctr, bool& Cancel) {
    Events(AmountSign::Signed).Leave(ctr, Cancel);
}

void Utils::OnCurrencyCtrValidateRange(const std::shared_ptr<TextControl>& ctr, TextIn strMin,
                                       TextIn strMax, TextIn lblMin, TextIn lblMax, bool& Cancel) {
    const auto self = shared_from_this();
    Events().CheckRange(ctr, strMin, strMax, lblMin, lblMax, Cancel);
}

}  // namespace halvek
