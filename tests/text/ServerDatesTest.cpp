#include "tests/CleanState.h"
#include "tests/FaultOf.h"

#include <halvekutils/core/Utils.h>
#include <halvekutils/text/ServerDates.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <memory>
#include <string>
#include <utility>

namespace halvek {
namespace {

using Texts = std::pair<const char16_t*, const char16_t*>;

struct ServerDates : CleanState {
    std::shared_ptr<Utils> utils_ = Utils::Create();
};

TEST_F(ServerDates, DaysAndSecondsAreDatesOverTheWholeRange) {
    const std::u16string manyDigits(40, u'9');
    const std::pair<std::u16string, const char16_t*> cases[] = {
        {u"1", u"01/01/1841"},
        {u"0", u"12/31/1840"},
        {u"58133", u"02/29/2000"},
        {u"21609", u"03/01/1900"},  // the day after February 28
        {u"2980013", u"12/31/9999"},
        {u"2980014", u""},
        {u"-635886", u"01/01/0100"},
        {u"-635886,-1", u""},
        {manyDigits, u""},
        {u"-1e400,0", u""},
        {u"60000,43200", u"04/10/2005 12:00:00 PM"},
        {u"1,86399", u"01/01/1841 11:59:59 PM"},
        {u"1,-1", u"12/31/1840 11:59:59 PM"},
        {u" 60000.9 days,0.9,5", u"04/10/2005"},
        {u"60000,", u"04/10/2005"},
        {u",3600", u"03/05/2024 01:00:00 AM"},
        {u",", u"03/05/2024"},
        {u",86400", u"Error: time is incorrect"},
        {u"1,86400", u"Error: time is incorrect"},
        {u"1," + manyDigits, u"Error: time is incorrect"},
        {u"nan", u"12/31/1840"},
        {u"inf,inf", u"12/31/1840"},
        {u" ", u"12/31/1840"},
        {u"", u""},
    };
    for (const auto& [given, text] : cases) {
        EXPECT_EQ(utils_->ConvertHDate(given), text) << testing::PrintToString(given);
    }
    const std::string log = ReadFile(machine_.ownFolder / "Error.Log");
    EXPECT_EQ(std::ranges::count(log, '\n'), 4);
    EXPECT_NE(log.find("\tError in Utils.ConvertHDate Overflow\r\n"), std::string::npos) << log;
}

TEST_F(ServerDates, AnIncorrectTimeIsToldInDebugModeOnly) {
    for (const bool debug : {false, true}) {
        utils_->InitUtils(u"", u"Front Desk", u"", debug, u"");
        EXPECT_EQ(utils_->ConvertHDate(u"1,86400"), u"Error: time is incorrect");
        EXPECT_EQ(desktop_.StockMessages().size(), debug);
    }
    EXPECT_EQ(desktop_.StockMessages()[0].text, u"Hey this time is not correct.....");
}

TEST_F(ServerDates, EveryObjectKeepsItsServersClock) {
    EXPECT_EQ(utils_->ServerTime(), machine_.now);
    utils_->InitServerTime(u"3/5/2024 09:08:33 AM");
    for (const char16_t* const noDate : {u"", u"2/30/2024", u"90", u"3/5/2024 24:00", u"nan"}) {
        utils_->InitServerTime(noDate);
    }
    EXPECT_EQ(FaultOf([&] { utils_->InitServerTime(u"3/24/2092"); }), 6);
    EXPECT_EQ(FaultOf([&] { utils_->InitServerTime(u"2/15/1956"); }), 6);
    machine_.now = MakeDateTime(2024, 12, 31, 23, 58, 30);
    EXPECT_EQ(utils_->ServerTime(), MakeDateTime(2025, 1, 1));
    EXPECT_EQ(Utils::Create()->ServerTime(), machine_.now);
    utils_->InitServerTime(u"11:58 PM");
    EXPECT_EQ(DateTimeText(utils_->ServerTime()), u"12/31/2024 11:58:00 PM");
}

TEST_F(ServerDates, DatesWithSlashesBecomeDigits) {
    const Texts cases[] = {
        {u"3/5/2024", u"03052024"},
        {u"12/31/24", u"123124"},
        {u" 3/ 5/2024 ", u"03052024"},
        {u"123/4/2024", u"123042024"},
        {u"123/4", u"1234"},
        {u"1//2024", u"12024"},
        {u"/5/2024", u"52024"},
        {u"3/5/2024 14:05", u"03052024 14:05"},
        {u"2/30", u"230"},
        {u"", u""},
        {u"///", u""},
    };
    for (const auto& [date, digits] : cases) {
        EXPECT_EQ(utils_->ConvertNumberToDate(date, false), digits);
    }
}

TEST_F(ServerDates, DigitsBecomeDatesWithSlashes) {
    const Texts cases[] = {
        {u"03052024", u"03/05/2024"},
        {u"030529", u"03/05/2029"},
        {u"030530", u"03/05/1930"},
        {u"0305", u"03/05/2024"},
        {u"022923", u"02/29/2023"},
        {u" 02302024", u"02/30/2024"},
        {u"13012024", u""},
        {u"0305202", u""},
        {u"0305-", u"03/05/-"},
        {u"03052-", u""},
        {u"3/5/2024", u""},
        {u"nan", u""},
        {u"", u""},
    };
    for (const auto& [digits, date] : cases) {
        EXPECT_EQ(utils_->ConvertNumberToDate(digits, true), date);
    }
    const DateTime last = MakeDateTime(2100, 12, 31);
    for (DateTime day = MakeDateTime(1900, 1, 1); day <= last; day += std::chrono::days(1)) {
        const std::u16string date = DateOnlyText(day);
        ASSERT_EQ(utils_->ConvertNumberToDate(utils_->ConvertNumberToDate(date, false), true),
                  date);
    }
}

}  // namespace
}  // namespace halvek
