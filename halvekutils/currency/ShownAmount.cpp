// SPDX-License-Identifier: MIT
#include <halvekutils/base/RuntimeError.h>
#include <halvekutils/currency/CurrencyHandlers.h>
#include <halvekutils/currency/ShownAmount.h>
#include <halvekutils/platform/TextField.h>

namespace halvek {

std::u16string ForLeaving(TextIn text) {
    std::optional<std::u16string> bare = BareAmount(text, AmountSign::Signed);
    if (!bare) return IsTypedAmount(text, AmountSign::Signed) ? std::u16string() : text.Str();
    const bool hasPoint = bare->find(u'.') != bare->npos;
    if (!hasPoint && IsTypedAmount(*bare, AmountSign::Signed)) *bare += u'.';
    return *bare;
}

std::optional<std::u16string> ShownAmount(TextIn text, AmountSign sign) {
    if (!BareAmount(text, AmountSign::Signed)) return std::nullopt;
    TextField field(ForLeaving(text));
    bool cancel = false;
    try {
        LeaveCurrencyField(field, cancel, sign);
    } catch (const RuntimeError&) {
        return std::nullopt;
    }
    return field.Text();
}

}  // namespace halvek
