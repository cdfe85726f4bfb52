// SPDX-License-Identifier: MIT
#include "tests/FaultOf.h"

#include <halvekutils/base/NumericText.h>
#include <halvekutils/base/Utf8.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <utility>
#include <vector>

namespace halvek {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

// NumbersFuzz has the plain rules; these are the ends of the range and great lengths.

TEST(NumericText, ValHoldsAtTheEndsOfTheRangeAndAtAnyLength) {
    const std::u16string far = u"99999999999999999999";
    const std::u16string zeros(400, u'0');
    const std::u16string million(1'000'000, u'0');
    const std::pair<double, std::vector<std::u16string>> rows[] = {
        {kInfinity, {u"1e309", u"1e" + far, u"0.001e400", u"1" + zeros, u"1" + zeros + u"e-5"}},
        {0, {u"1e-400", u"-1e-" + far, u"0e" + far, u"." + zeros + u"1", u"." + zeros + u"1e5"}},
        {1, {u"1" + zeros + u"e-400", u"." + zeros + u"1e401"}},
        {7, {million + u"7", u"7." + million + u"x", std::u16string(1'000'000, u' ') + u"7"}},
    };
    for (const auto& [value, texts] : rows) {
        for (const auto& text : texts) EXPECT_EQ(Val(text), value) << ToUtf8(text.substr(0, 40));
    }
    EXPECT_EQ(ToNumber(std::u16string(100'000, u'0') + u"7"), 7);
    EXPECT_FALSE(IsNumeric(u"1" + zeros) || IsNumeric(std::u16string(u"1\0", 2)));
}

TEST(NumericText, NumbersBeyondAnyOtherHaveATextAndNoInteger) {
    EXPECT_EQ(NumberText(-kInfinity) + NumberText(kNaN) + NumberText(-0.0), u"-InfinityNaN0");
    EXPECT_TRUE(std::isnan(RoundToCents(kNaN)));
    for (const double number : {kInfinity, kNaN, 1e300}) {
        EXPECT_EQ(FaultOf([number] { RoundToInt32(number); }), 6) << number;
    }
}

}  // namespace
}  // namespace halvek
