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

/// Texts that all read as the same value.
struct Reading {
    double value;
    std::vector<std::u16string> texts;
};

template <std::size_t kCount, class Reader>
void ExpectAll(const Reading (&rows)[kCount], Reader read) {
    for (const Reading& row : rows) {
        for (const std::u16string& text : row.texts) {
            EXPECT_EQ(read(text), row.value) << ToUtf8(text.substr(0, 40));
        }
    }
}

TEST(NumericText, ValHoldsAtTheEndsOfTheRangeAndAtAnyLength) {
    const std::u16string far = u"99999999999999999999";
    const std::u16string zeros(400, u'0');
    const std::u16string million(1'000'000, u'0');
    const Reading rows[] = {
        {kInfinity, {u"1e309", u"1e" + far, u"0.001e400", u"1" + zeros, u"1" + zeros + u"e-5"}},
        {0, {u"1e-400", u"-1e-" + far, u"0e" + far, u"." + zeros + u"1", u"." + zeros + u"1e5"}},
        {1, {u"1" + zeros + u"e-400", u"." + zeros + u"1e401"}},
        {7, {million + u"7", u"7." + million + u"x", std::u16string(1'000'000, u' ') + u"7"}},
    };
    ExpectAll(rows, Val);
    EXPECT_EQ(ToNumber(std::u16string(100'000, u'0') + u"7"), 7);
    EXPECT_FALSE(IsNumeric(u"1" + zeros) || IsNumeric(std::u16string(u"1\0", 2)));
}

TEST(NumericText, RoundToInt32TakesHalvesToTheEvenInteger) {
    const Reading rows[] = {
        {0, {u"0.5", u"-0.5", u"0.49", u"x"}},
        {2, {u"1.5", u"2.5"}},
        {3, {u"2.51", u"3.49"}},
        {-2, {u"-1.5", u"-2.5"}},
    };
    ExpectAll(rows, ToInt32);

    EXPECT_EQ(RoundToInt32(2147483647.4), 2147483647);
    for (const double number : {2147483647.5, -2147483648.51, 1e300, kInfinity, -kInfinity, kNaN}) {
        EXPECT_EQ(FaultOf([number] { RoundToInt32(number); }), 6) << number;
    }
    EXPECT_TRUE(std::isnan(RoundToCents(kNaN)));
}

TEST(NumericText, NumberTextGivesUpTo15Digits) {
    const std::pair<std::u16string, std::vector<double>> rows[] = {
        {u"0", {0, -0.0}},
        {u"0.3", {0.3, 0.1 + 0.2}},
        {u"123456789012345", {123456789012345, 123456789012345.1}},
        {u"1E-05", {0.00001}},
        {u"1E+15", {1e15, 999999999999999.9}},
        {u"-1.5E-300", {-1.5e-300}},
        {u"NaN", {kNaN, -kNaN}},
        {u"-Infinity", {-kInfinity}},
    };
    for (const auto& [text, numbers] : rows) {
        for (const double number : numbers) EXPECT_EQ(NumberText(number), text);
    }
}

}  // namespace
}  // namespace halvek
