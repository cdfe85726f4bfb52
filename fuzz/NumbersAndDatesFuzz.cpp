// SPDX-License-Identifier: MIT
#include "fuzz/FuzzText.h"

#include <halvekutils/base/DateText.h>
#include <halvekutils/base/NumericText.h>

#include <cmath>

using namespace halvek;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::u16string text = FuzzText(data, size);
    Require(!std::isnan(Val(text)), "a leading number is a number");
    if (const auto number = ToNumber(text)) {
        const auto again = ToNumber(NumberText(*number));
        const bool close = again && std::abs(*again - *number) <= std::abs(*number) * 1e-14;
        Require(close || std::abs(*number) > 1.79e308, "a number's text reads back");
        Require(IsNumeric(text), "both numeric tests agree");
    }
    if (const auto date = ParseDateTime(text, MakeDateTime(2024, 3, 5))) {
        Require(ParseDateTime(DateTimeText(*date), *date) == date, "a date's text reads back");
    }
    return 0;
}
