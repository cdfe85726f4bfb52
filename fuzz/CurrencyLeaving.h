// SPDX-License-Identifier: MIT
#pragma once

#include "fuzz/FuzzTarget.h"

#include <halvekutils/base/NumericText.h>
#include <halvekutils/base/RuntimeError.h>
#include <halvekutils/currency/CurrencyHandlers.h>
#include <halvekutils/platform/TextField.h>

namespace halvek {

/// The cents of a bare number, read digit by digit; nothing for any other text.
inline std::optional<std::int64_t> CentsOf(std::u16string_view text) {
    const bool negative = text.starts_with(u'-');
    if (negative) text.remove_prefix(1);
    const bool hasDigit = text.find_first_of(u"0123456789") != text.npos;
    if (!hasDigit || text.find_first_not_of(u"0123456789.") != text.npos) return std::nullopt;
    const std::size_t point = std::min(text.find(u'.'), text.size());
    std::u16string whole(text.substr(0, point));
    std::u16string fraction(text.substr(std::min(point + 1, text.size())));
    if (point == text.size() && whole.size() > 7) {  // seven digits count, nine end in cents
        fraction = whole.size() == 9 ? whole.substr(7) : u"";
        whole.resize(7);
    }
    fraction.resize(std::max(fraction.size(), std::size_t{3}), u'0');
    const std::u16string digits = whole + fraction.substr(0, 2);
    const std::size_t carry = fraction[2] >= u'5' ? 1 : 0;  // it may add a digit
    if (fraction.find(u'.') != fraction.npos || digits.size() + carry > 18) return std::nullopt;
    auto cents = static_cast<std::int64_t>(carry);
    std::int64_t place = 1;
    for (std::size_t i = digits.size(); i-- > 0; place *= 10) cents += place * (digits[i] - u'0');
    return negative ? -cents : cents;
}

/// Whether a text is an amount as a field shows it: "$1,234.50", "$-0.05".
inline bool IsShown(const std::u16string& text) {
    std::size_t at = text.starts_with(u"$-") ? 2 : 1;
    const std::size_t point = text.size() - 3;
    if (text.size() < at + 4 || text[0] != u'$' || text[point] != u'.') return false;
    for (; at < text.size(); ++at) {
        const bool isComma = at < point && (point - at) % 4 == 0;
        const bool isDigit = text[at] >= u'0' && text[at] <= u'9';
        if (at != point && (isComma ? text[at] != u',' : !isDigit)) return false;
    }
    return true;
}

inline bool Leave(TextField& box, AmountSign sign) {
    try {
        bool cancel = false;
        LeaveCurrencyField(box, cancel, sign);
        return true;
    } catch (const RuntimeError& fault) {
        Require(fault.Code() == Fault::TypeMismatch, "what is no amount is a type mismatch");
        return false;
    }
}

/// Leaves the field, which must then show the amount that it held, and keep it.
inline void CheckLeaving(TextField& box, AmountSign sign) {
    const std::u16string held = box.Text();
    const auto cents = CentsOf(held);
    if (!Leave(box, sign)) {
        const bool hasSign = sign == AmountSign::Unsigned && held.starts_with(u'-');
        Require(box.Text() == held && (!cents || hasSign), "only what is no amount is refused");
        return;
    }
    const std::u16string shown = box.Text();
    const bool isEmpty = shown.find_first_not_of(u"$ ") == shown.npos;
    if (isEmpty || shown == u"0.00") {
        return Require(cents.value_or(0) == 0, "nothing is left of nothing only");
    }
    Require(IsShown(shown), "an amount is shown as an amount");
    EnterCurrencyField(box);
    Require(!cents || CentsOf(box.Text()) == cents, "the amount is the one that was held");
    Require(ToNumber(shown) == ToNumber(box.Text()), "entering keeps the amount");
    Require(box.SelLength() == static_cast<std::int32_t>(box.Text().size()), "all is selected");
    Leave(box, sign);
    Require(box.Text() == shown || ToNumber(shown) == 0.0, "leaving again changes nothing");
}

}  // namespace halvek
