// SPDX-License-Identifier: MIT
#include "fuzz/FuzzTarget.h"

#include <halvekutils/base/NumericText.h>
#include <halvekutils/base/RuntimeError.h>
#include <halvekutils/currency/AmountRange.h>
#include <halvekutils/currency/CurrencyHandlers.h>
#include <halvekutils/currency/CurrencyKeys.h>
#include <halvekutils/platform/TextField.h>

#include <regex>

using namespace halvek;

namespace {

/// The cents of a bare number, read digit by digit; nothing for any other text.
std::optional<std::int64_t> CentsOf(std::u16string_view text) {
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
    const std::int64_t cents = std::stoll(ToCodePage(digits)) + static_cast<std::int64_t>(carry);
    return negative ? -cents : cents;
}

/// Whether a text is an amount as a field shows it: "$1,234.50", "$-0.05".
bool IsShown(const std::u16string& text) {
    static const std::regex amount(R"(\$-?\d{1,3}(,\d{3})*\.\d\d)");
    return std::regex_match(ToCodePage(text), amount);
}

bool Leave(TextField& box, AmountSign sign) {
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
void CheckLeaving(TextField& box, AmountSign sign) {
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

/// True when each comma has exactly three digits after it.
bool PartsThousands(const std::u16string& text) {
    static const std::regex other(R"(,(?!\d{3}(?!\d)))");
    return !std::regex_search(ToCodePage(text), other);
}

/// A pasted text is read as the other readers of amounts read it, or not at all.
void CheckPasting(const std::u16string& text, AmountSign sign) {
    const auto bare = BareAmount(text, sign);
    const auto number = ToNumber(text);
    Require(!bare || !number || ToNumber(*bare) == number, "both readers agree");
    Require(!bare || PartsThousands(text), "a decimal comma is not taken for another");
    const auto typed = TypedAmount(text, sign);
    Require(!typed || IsTypedAmount(*typed, sign), "what a field holds could have been typed");
    Require(!bare || typed.has_value() == IsTypedAmount(*bare, sign), "what fits is taken");
    if (bare && CentsOf(*bare)) {
        TextField box(*bare + (bare->find(u'.') == bare->npos ? u"." : u""));
        const auto cents = CentsOf(box.Text());
        Require(!cents || CentsIn(text) == cents, "the cents are those of its digits");
        CheckLeaving(box, sign);
    }
    TextField box(text);
    CheckLeaving(box, sign);
}

void CheckRange(std::int32_t low, std::int32_t high) {
    const std::u16string texts[] = {IntegerText(low) + u'.', IntegerText(high)};
    const bool wrong = low != 0 && high != 0 && static_cast<float>(low) > static_cast<float>(high);
    Require(RangeComplaint(texts[0], texts[1], u"", u"").has_value() == wrong, "a range");
}

/// Presses a key as a text box does: an accepted character replaces the selection.
void Press(TextField& box, char16_t letter, AmountSign sign) {
    auto key = static_cast<std::int16_t>(letter);
    PressCurrencyKey(box, key, sign);
    if (key == 0) return;
    auto start = static_cast<std::size_t>(box.SelStart());
    auto length = static_cast<std::size_t>(box.SelLength());
    const bool isBackspace = letter == u'\b';
    if (isBackspace && length == 0 && start > 0) --start, length = 1;
    std::u16string text = box.Text().replace(start, length, isBackspace ? 0 : 1, letter);
    box.Text(text);
    box.SelStart(static_cast<std::int32_t>(start + (isBackspace ? 0 : 1)));
    CutDecimals(box, sign);
}

void CheckEditing(FuzzedDataProvider& input, AmountSign sign) {
    TextField box;
    while (input.remaining_bytes() > 0) {
        const auto place = input.ConsumeIntegralInRange(0, 12);
        switch (input.ConsumeIntegralInRange(0, 5)) {
            case 0:
                box.SelStart(place);
                box.SelLength(input.ConsumeIntegralInRange(0, 12));
                break;
            case 1:
                if (const auto pasted = TypedAmount(FuzzText(input, 14), sign)) box.Text(*pasted);
                break;
            case 2:
                CheckLeaving(box, sign);
                EnterCurrencyField(box);
                break;
            default:
                Press(box, u"0123456789.-+\b,$"[input.ConsumeIntegralInRange(0, 15)], sign);
        }
        const bool known = box.Text().find_first_not_of(u"0123456789.-$,") == std::u16string::npos;
        Require(known, "nothing but amounts comes into a field");
        const std::size_t minus = box.Text().rfind(u'-');
        Require(minus == 0 || minus == std::u16string::npos, "a sign stands in front");
    }
    CheckLeaving(box, sign);
}

}  // namespace

void halvek::Check(FuzzedDataProvider& input) {
    const AmountSign sign = input.ConsumeBool() ? AmountSign::Signed : AmountSign::Unsigned;
    switch (input.ConsumeIntegralInRange(0, 2)) {
        case 0:
            return CheckEditing(input, sign);
        case 1:
            return CheckPasting(RestAsText(input, u"0159.,$-() "), sign);
        default:
            const auto cents = input.ConsumeIntegral<std::int64_t>();
            Require(CentsIn(u'$' + FormatCents(cents)) == cents, "cents come back");
            CheckRange(input.ConsumeIntegral<std::int32_t>(),
                       input.ConsumeIntegral<std::int32_t>());
    }
}
