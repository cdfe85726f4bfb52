// SPDX-License-Identifier: MIT
#include "tests/FaultOf.h"

#include <halvekutils/base/DateText.h>
#include <halvekutils/base/Utf8.h>

#include <gtest/gtest.h>

#include <tuple>
#include <utility>
#include <vector>

namespace halvek {
namespace {

using std::chrono::days;
using std::chrono::seconds;

const DateTime kToday = MakeDateTime(2004, 3, 7, 9, 30);

/// The text as read on March 7, 2004 and written again; "-" for a refused one.
std::string ReadAgain(const std::u16string& text) {
    const auto when = ParseDateTime(text, kToday);
    return when ? ToUtf8(DateTimeText(*when)) : "-";
}

TEST(DateText, ParsesEveryWayToWriteADateOrTime) {
    const std::pair<std::string, std::vector<std::u16string>> rows[] = {
        {"03/07/2004", {u"3/7/2004", u"  03-07-2004\t", u"3/7/04", u"2004-03-07", u"2004/3/7"}},
        {"03/07/2004", {u"March 7, 2004", u"mar 7 2004", u"7 MAR 2004", u"7-Mar-2004", u"0:00"}},
        {"02/29/2000", {u"2/29/2000", u"2/29/00", u"29/feb/2000", u"29 february, 00 12:00 AM"}},
        {"03/07/2029", {u"3/7/29"}},
        {"03/07/1930", {u"3/7/30"}},
        {"03/07/0100", {u"3/7/100", u"03/07/0100", u"0100-03-07"}},
        {"03/07/2004 02:05:00 PM", {u"2004-03-07T14:05", u"2004-03-07 2:05pm", u"14:05"}},
        {"03/07/2004 02:05:09 PM", {u"2004-03-07t02:05:09 pm", u"7 Mar 04 14:05:09"}},
        {"03/07/2004 12:30:00 AM", {u"3/7/2004 12:30 am", u"3/7/2004 0:30", u"00:30"}},
        {"03/07/2004 12:30:00 PM", {u"3/7/2004 12:30 Pm", u"3/7/2004 12:30", u"12:30 PM"}},
        {"12/31/1999 11:59:59 PM", {u"31 december, 99 11:59:59PM", u"12/31/99 23:59:59"}},
    };
    for (const auto& [read, texts] : rows) {
        for (const auto& text : texts) EXPECT_EQ(ReadAgain(text), read) << ToUtf8(text);
    }
}

TEST(DateText, RefusesWhatIsNoDate) {
    const std::vector<std::u16string> rows[] = {
        {u"", u" ", u"abc", u"3", u"/", u"3/7", u"3/7/", u"03072004", u"2004-03", u"March 2004"},
        {u"3/7-2004", u"3//2004", u"3.7.2004", u"2004-3/7", u"7-Mar/2004", u"003/7/2004"},
        {u"2/29/2001", u"2/29/1900", u"4/31/2004", u"3/0/2004", u"3/32/2004", u"March 32, 2004"},
        {u"0/7/2004", u"13/7/2004", u"2004-13-01", u"Marc 7, 2004", u"March, 7 2004"},
        {u"3/7/4", u"3/7/099", u"1/1/0099", u"3/7/10000", u"3/7/20040", u"3/7/4294969300"},
        {u"24:00", u"10:60", u"10:00:60", u"10:5", u"10:00:5", u"0:30 AM", u"13:00 PM"},
        {u"10", u"10 AM", u"10:", u"10:00:", u":30", u"10:00 XM", u"10:00 AM PM", u"AM"},
        {u"2004-03-07T", u"2004-03-07Tx", u"2004-03-07T10:00Z", u"3/7/2004T10:00"},
        {u"3/7/2004 x", u"3/7/2004,", u"3/7/2004 10", u"3/7/2004 10:00 x", u"10:00 3/7/2004"},
        {std::u16string(u"3/7/2004\0", 9), u"3/7/2004\u00A0", u"\u0663/7/2004", u"3\u2215/7/04"},
    };
    for (const auto& row : rows) {
        for (const auto& text : row) EXPECT_EQ(ReadAgain(text), "-") << ToUtf8(text);
    }
}

TEST(DateText, EndsWithTheYears100And9999) {
    const DateTime outside[] = {kFirstDateTime - seconds(1), kLastDateTime + seconds(1),
                                DateTime::min(), DateTime::max()};
    for (const DateTime when : outside) {
        EXPECT_EQ(FaultOf([when] { DateTimeText(when); }), 6);
        EXPECT_EQ(FaultOf([when] { DateOnlyText(when); }), 6);
    }
    EXPECT_EQ(ParseDateTime(u"10:00", kLastDateTime + days(1)), std::nullopt);
    // The calendar types keep the low bits only, and no text leads that far.
    const std::tuple<int, unsigned, unsigned, int> rows[] = {
        {2001, 2, 29, 0}, {2001, 257, 1, 0}, {2001, 1, 257, 0}, {67537, 1, 1, 0}, {2001, 1, 1, 24}};
    const auto make = [](auto... parts) { MakeDateTime(parts...); };
    for (const auto& row : rows) {
        EXPECT_EQ(FaultOf([&] { std::apply(make, row); }), 5) << testing::PrintToString(row);
    }
}

}  // namespace
}  // namespace halvek
