// SPDX-License-Identifier: MIT
#include <halvekutils/base/NumericText.h>
#include <halvekutils/base/RuntimeError.h>
#include <halvekutils/currency/AmountRange.h>

#include <cmath>
#include <limits>

namespace halvek {

namespace {

float AmountOf(TextIn text) {
    const double amount = ToNumber(text).value_or(0);
    if (std::abs(amount) > std::numeric_limits<float>::max()) throw RuntimeError(Fault::Overflow);
    return static_cast<float>(amount);
}

}  // namespace

std::optional<std::u16string> RangeComplaint(TextIn strMin, TextIn strMax, TextIn lblMin,
                                             TextIn lblMax) {
    const float lower = AmountOf(strMin);
    const float upper = AmountOf(strMax);
    if (lower == 0 || upper == 0 || lower <= upper) return std::nullopt;
    // "then" is what users have always read here.
    return u'"' + lblMax.Str() + u"\" amount cannot be less then \"" + lblMin.Str() + u"\" amount.";
}

}  // namespace halvek
