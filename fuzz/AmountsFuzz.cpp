// SPDX-License-Identifier: MIT
#include "fuzz/CurrencyLeaving.h"

#include <halvekutils/currency/AmountRange.h>

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

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzedDataProvider input(data, size);
    const auto cents = input.ConsumeIntegral<std::int64_t>();
    Require(CentsIn(u'$' + FormatCents(cents)) == cents, "cents come back");
    CheckRange(input.ConsumeIntegral<std::int32_t>(), input.ConsumeIntegral<std::int32_t>());
    const AmountSign sign = input.ConsumeBool() ? AmountSign::Signed : AmountSign::Unsigned;
    CheckPasting(RestAsText(input, u"0159.,$-() "), sign);
    return 0;
}
