// SPDX-License-Identifier: MIT
#include "tests/CleanState.h"
#include "tests/FaultOf.h"

#include <initializer_list>

namespace halvek {
namespace {

struct ServerDates : CleanState {
    /// Compares a member's results with rows of "argument=result".
    static void ExpectResults(const std::function<std::u16string(TextIn)>& member,
                              std::initializer_list<std::u16string> rows) {
        for (const std::u16string& row : rows) {
            const std::u16string given = row.substr(0, row.find(u'='));
            EXPECT_EQ(given + u'=' + member(given), row);
        }
    }
};

TEST_F(ServerDates, DaysAndSecondsAreDatesOverTheWholeRange) {
    const auto toText = [&](TextIn date) { return utils_->ConvertHDate(date); };
    ExpectResults(toText,
                  {u"1=01/01/1841", u"0=12/31/1840", u"58133=02/29/2000", u"-1,0=12/30/1840",
                   u"21608=02/28/1900", u"21609=03/01/1900", u"2980013=12/31/9999", u"2980014=",
                   u"-635886=01/01/0100", u"-635886,-1=", u"nan=12/31/1840", u"="});
    ExpectResults(toText, {u"60000,43200=04/10/2005 12:00:00 PM", u"1,-1=12/31/1840 11:59:59 PM",
                           u"1,86399=01/01/1841 11:59:59 PM", u" 60000.9 days,0.9,5=04/10/2005",
                           u",3600=03/05/2024 01:00:00 AM", u",=03/05/2024",
                           u"1,1e400=Error: time is incorrect", u",86400=Error: time is incorrect",
                           u"9999999999999999999999999999999999999999="});
    EXPECT_TRUE(Log().ends_with("\tError in Utils.ConvertHDate Overflow\r\n")) << Log();
    EXPECT_TRUE(desktop_.StockMessages().empty());
    Start(true);
    EXPECT_EQ(utils_->ConvertHDate(u"1,86400"), u"Error: time is incorrect");
    EXPECT_EQ(desktop_.StockMessages().at(0).text, u"Hey this time is not correct.....");
}

TEST_F(ServerDates, EveryObjectKeepsItsServersClock) {
    Start(true);
    utils_->ClearDebug();
    utils_->InitServerTime(u"3/5/2024 09:08:33 AM");
    for (const TextIn noDate :
         {u"", u"2/30/2024", u"nan", u"2024-03-05T09:08:34Z", u"3/5/2024 9:08:34+01:00", u", 9:08",
          u"3/5/2024,, 9:08", u"3/5/2024 9:08.5", u"3/5/2024 9:08:34.", u"9:08:34.5.5"}) {
        utils_->InitServerTime(noDate);
    }
    EXPECT_TRUE(desktop_.Console()->Text().ends_with(u": not a date: 9:08:34.5.5\r\n"));
    EXPECT_EQ(FaultOf([&] { utils_->InitServerTime(u"3/24/2092"); }), 6);
    machine_.now = MakeDateTime(2024, 12, 31, 23, 58, 30);
    EXPECT_EQ(utils_->ServerTime(), MakeDateTime(2025, 1, 1));
    EXPECT_EQ(Utils::Create()->ServerTime(), machine_.now);
    EXPECT_EQ(utils_->ConvertHDate(u",3600"), u"12/31/2024 01:00:00 AM");
    utils_->InitServerTime(u"11:58 PM");
    EXPECT_EQ(utils_->ServerTime(), MakeDateTime(2024, 12, 31, 23, 58));
    for (const TextIn clock : {u"3/7/2024, 2:05:09.75 PM", u"2024-03-07T14:05:09.999999",
                               u"Mar 7, 2024 , 14:05:09", u"7 March, 2024 14:05:09.0"}) {
        utils_->InitServerTime(u"11:58 PM");
        utils_->InitServerTime(clock);
        EXPECT_EQ(utils_->ServerTime(), MakeDateTime(2024, 3, 7, 14, 5, 9));
    }
}

TEST_F(ServerDates, DatesWithSlashesBecomeDigitsAndComeBack) {
    const auto toDigits = [&](TextIn date) { return utils_->ConvertNumberToDate(date, false); };
    const auto toDate = [&](TextIn digits) { return utils_->ConvertNumberToDate(digits, true); };
    ExpectResults(toDigits, {u"3/5/2024=03052024", u" 3/ 5/24 =030524", u"123/4/2024=123042024",
                             u"123/4=1234", u"1//2024=12024", u"///=", u"="});
    ExpectResults(toDate, {u"03052024=03/05/2024", u"030529=03/05/2029", u"030530=03/05/1930",
                           u"0305=03/05/2024", u"022923=02/29/2023", u"13012024=", u"0305202=",
                           u"03052-=", u"3/5/2024=", u"nan=", u" 03052024 =03/05/2024",
                           u"(03052024)=", u"1e100=", u"$3052024=", u"-3052024=", u"="});
}

}  // namespace
}  // namespace halvek
