// SPDX-License-Identifier: MIT
#include "fuzz/FuzzText.h"

#include <halvekutils/base/NumericText.h>

#include <cmath>
#include <cstdlib>

using namespace halvek;

namespace {

/// A number as the C library writes and reads it.
void CheckValue(const std::u16string& text) {
    Require(!std::isnan(Val(text)), "a leading number is a number");
    const bool isPlain = text.find_first_not_of(u"0123456789.eE+- ") == text.npos;
    const std::string bytes = ToCodePage(text);
    if (isPlain) Require(Val(text) == std::strtod(bytes.c_str(), nullptr), "its value");
}

void CheckNumber(const std::u16string& text) {
    const auto number = ToNumber(text);
    Require(IsNumeric(text) == number.has_value(), "both numeric tests agree");
    const bool isPlain = text.find_first_not_of(u"0123456789.eE") == text.npos;
    if (isPlain) {
        const std::string bytes = ToCodePage(text);
        char* end = nullptr;
        const bool isFinite = std::isfinite(std::strtod(bytes.c_str(), &end));
        const bool isWhole = !text.empty() && *end == '\0';
        Require(number.has_value() == (isWhole && isFinite), "a number as a whole, or none");
    }
    if (!number) return;
    const auto again = ToNumber(NumberText(*number));
    const bool close = again && std::abs(*again - *number) <= std::abs(*number) * 1e-14;
    Require(close || std::abs(*number) > 1.79e308, "a number's text reads back");
    Require(!isPlain || Val(text) == *number, "both readers agree");
}

/// Thousandths are rounded as whole numbers are, halves away from zero.
void CheckRounding(std::int64_t thousandths) {
    const std::int64_t size = std::abs(thousandths);
    const std::int64_t cents = (size + 5) / 10;
    const auto decimal = [&](std::int64_t whole, std::int64_t rest, std::int64_t unit) {
        return (thousandths < 0 ? u"-" : u"") + IntegerText(whole) + u'.' +
               IntegerText(unit + rest).substr(1);
    };
    const double rounded = RoundToCents(Val(decimal(size / 1000, size % 1000, 1000)));
    Require(rounded == Val(decimal(cents / 100, cents % 100, 100)), "rounded to the cent");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::u16string text = FuzzText(data, size);
    CheckValue(text);
    CheckNumber(text);
    CheckNumber(Narrowed(text, u"0159.eE"));
    FuzzedDataProvider input(data, size);
    CheckRounding(
        input.ConsumeIntegralInRange<std::int64_t>(-9'999'999'999'999, 9'999'999'999'999));
    return 0;
}
