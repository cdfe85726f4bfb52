// SPDX-License-Identifier: MIT
#include "tests/FaultOf.h"

#include <halvekutils/base/NumericText.h>
#include <halvekutils/base/Utf8.h>

#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>
#include <limits>
#include <string>
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

TEST(NumericText, ValReadsTheLongestNumberThatTheTextStartsWith) {
    const Reading rows[] = {
        {1, {u"1", u" 1", u"\t 1", u"1.0", u"01", u"1x", u"1,234", u"1e", u"1e+", u"1 2", u"1-"}},
        {7, {u"+7", u"7.", u"7.0.5", u"07"}},
        {-0.5, {u"-.5", u"-0.5", u"-5e-1", u"-5.E-1z"}},
        {0, {u"", u"  ", u".", u"-", u"- 1", u"--1", u"$1", u"(1)", u"e5", u".e5", u"-.e5"}},
        {0, {u"nan", u"inf", u"0x10", u"x1", u"\u0661", u"\u0131"}},
    };
    ExpectAll(rows, Val);
    EXPECT_FALSE(std::signbit(Val(u"-0")));
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
}

TEST(NumericText, ToNumberReadsAmountsAsFieldsShowThem) {
    const Reading rows[] = {
        {5, {u"5", u" 5\t", u"5.", u"+5", u"5+", u"$5", u"$+5", u"+$5", u".5e1", u"0,005"}},
        {-5,
         {u"-5", u"5-", u"$-5", u"-$5", u"$5-", u"(5.00)", u"($5)", u"$(5)", u" -5E0 ", u"5e0-"}},
        {1234.5, {u"$1,234.50", u"1234.5", u"12,34.5", u"1.2345E+3"}},
        {-1234567.89, {u"$-1,234,567.89", u"($1,234,567.89)"}},
        {0, {u"1e-400", u"-0", u"(0)", std::u16string(100'000, u'0')}},
    };
    ExpectAll(rows, ToNumber);
    EXPECT_FALSE(std::signbit(ToNumber(u"(0)").value()));
}

TEST(NumericText, IsNumericRefusesWhatIsNoNumberAsAWhole) {
    const std::vector<std::u16string> rows[] = {
        {u"", u" ", u"$", u"-", u".", u"-.", u"$.", u"(", u")", u"()", u"($)", u"e5", u",5"},
        {u"1 2", u"- 5", u"$ 5", u"( 5 )", u"1x", u"abc", u"0x10", u"nan", u"inf", u"Infinity"},
        {u"--5", u"-5-", u"+5-", u"$$5", u"$-$5", u"5$", u"(-5)", u"(5-)", u"-(5)", u"((5))"},
        {u"(5", u"5)", u"1.2.3", u"1e", u"1e+", u"5,", u"1,,2", u"1,.5", u"1.5,0", u"1e1,0"},
        {u"1e309", u"1" + std::u16string(400, u'0'), std::u16string(u"1\0", 2)},
    };
    for (const auto& row : rows) {
        for (const auto& text : row) EXPECT_FALSE(IsNumeric(text)) << ToUtf8(text);
    }
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
}

TEST(NumericText, RoundToCentsDecidesOnTheShortestDecimalText) {
    const std::pair<double, std::vector<double>> rows[] = {
        {12.35, {12.345, 12.3549999, 12.35}},
        {-2.68, {-2.675, -2.684}},
        {1.01, {1.005, 1.0149999}},
        {0, {0.00499999999999, 5e-324, -0.004, -0.0}},
        {35184372088832.13, {35184372088832.125}},
    };
    for (const auto& [rounded, numbers] : rows) {
        for (const double number : numbers) EXPECT_EQ(RoundToCents(number), rounded) << number;
    }
    EXPECT_FALSE(std::signbit(RoundToCents(-0.004)));
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
