// SPDX-License-Identifier: MIT
#include "fuzz/CurrencyLeaving.h"

#include <halvekutils/currency/AmountRange.h>
#include <halvekutils/currency/CurrencyKeys.h>

using namespace halvek;

namespace {

/// True when each comma has exactly three digits after it.
bool PartsThousands(const std::u16string& text) {
    constexpr std::u16string_view kDigits = u"0123456789";
    for (std::size_t at = 0; (at = text.find(u',', at)) != text.npos; ++at) {
        const std::size_t end = std::min(text.find_first_not_of(kDigits, at + 1), text.size());
        if (end - at != 4) return false;
    }
    return true;
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

/// Digits and a point typed one after the other: those without room are refused.
void CheckTyping(FuzzedDataProvider& input) {
    TextField box;
    std::u16string whole, fraction;
    bool hasPoint = false;
    while (input.remaining_bytes() > 0) {
        const char16_t key = u"0123456789."[input.ConsumeIntegralInRange(0, 10)];
        if (key == u'.' && hasPoint) continue;  // it would move the caret
        Press(box, key, AmountSign::Unsigned);
        if (key == u'.') {
            if (whole.empty()) whole = u"0";
            hasPoint = true;
        } else if (!hasPoint && whole.size() < 7) {
            whole += key;
        } else if (hasPoint && fraction.size() < 2) {
            fraction += key;
        }
        Require(box.Text() == whole + (hasPoint ? u"." : u"") + fraction, "as typed");
    }
    CheckLeaving(box, AmountSign::Unsigned);
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
    switch (input.ConsumeIntegralInRange(0, 3)) {
        case 0:
            return CheckTyping(input);
        case 1:
            return CheckEditing(input, sign);
        case 2:
            return CheckPasting(RestAsText(input, u"0159.,$-() "), sign);
        default:
            const auto cents = input.ConsumeIntegral<std::int64_t>();
            Require(CentsIn(u'$' + FormatCents(cents)) == cents, "cents come back");
            CheckRange(input.ConsumeIntegral<std::int32_t>(),
                       input.ConsumeIntegral<std::int32_t>());
    }
}
