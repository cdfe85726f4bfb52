#include "tests/CleanState.h"

#include <halvekutils/core/Utils.h>
#include <halvekutils/dialogs/Calendar.h>

#include <gtest/gtest.h>

#include <chrono>
#include <cmath>
#include <memory>
#include <string>
#include <tuple>

namespace halvek {
namespace {

using Key = Calendar::Key;

struct HostWindow : OwnerForm {
    std::int32_t Left() const override { return 0; }
    std::int32_t Top() const override { return 0; }
    std::int32_t Width() const override { return 0; }
    std::int32_t Height() const override { return 0; }
    bool Exists() const override { return exists; }
    void Refresh() override { ++refreshes; }

    bool exists = true;
    int refreshes = 0;
};

/// On 3/5/2024.
struct CalendarTest : CleanState {
    void SetUp() override { utils_->InitUtils(u"", u"Front Desk", u"", false, u""); }

    std::u16string Chosen(TextIn dateToShow, ScriptedPlatform::CalendarAnswer answer) {
        desktop_.OnCalendar(std::move(answer));
        return utils_->ShowCalendar(-1, -1, -1, dateToShow);
    }

    std::shared_ptr<Utils> utils_ = Utils::Create();
};

TEST_F(CalendarTest, OpensOnTheDateOrTheDefaultOrToday) {
    const std::tuple<const char16_t*, const char16_t*, bool, const char16_t*> cases[] = {
        {u"", u"", false, u"03/05/2024"},
        {u"  3/7/2004  ", u"1/2/2003", false, u"03/07/2004"},
        {u"3/7/2004 11:59 PM", u"", false, u"03/07/2004"},
        {u"2/30/2004", u"1/2/2003", false, u"01/02/2003"},
        {u"12/31/1752", u"1/2/2003", false, u"01/02/2003"},
        {u"1/1/1753", u"1/2/2003", false, u"01/01/1753"},
        {u"12/31/9999", u"", false, u"12/31/9999"},
        {u"1/1/10000", u"12/31/1752", false, u"03/05/2024"},
        {u"03072004", u"1/2/2003", false, u"01/02/2003"},
        {u"03072004", u"1/2/2003", true, u"03/07/2004"},
        {u"3/7/04", u"1/2/2003", true, u"03/07/2004"},
        {u"Mar 7, 2004", u"", true, u"03/05/2024"},
    };
    for (const auto& [date, fallback, converts, opensOn] : cases) {
        desktop_.OnCalendar([](Calendar& calendar) { calendar.KeyDown(Key::Enter); });
        EXPECT_EQ(utils_->ShowCalendar(-1, -1, -1, date, fallback, nullptr, converts), opensOn);
    }
}

TEST_F(CalendarTest, KeysMoveTheMarkedDayWithinTheMonthsAndTheRange) {
    const std::tuple<const char16_t*, Key, const char16_t*> cases[] = {
        {u"3/1/2024", Key::Left, u"02/29/2024"},
        {u"12/31/2023", Key::Right, u"01/01/2024"},
        {u"3/5/2024", Key::Up, u"02/27/2024"},
        {u"2/27/2024", Key::Down, u"03/05/2024"},
        {u"1/31/2024", Key::PageDown, u"02/29/2024"},
        {u"1/31/2024", Key::PageUp, u"12/31/2023"},
        {u"2/29/2024", Key::CtrlPageUp, u"02/28/2023"},
        {u"2/29/2024", Key::CtrlPageDown, u"02/28/2025"},
        {u"2/15/2024", Key::Home, u"02/01/2024"},
        {u"2/15/2024", Key::End, u"02/29/2024"},
        {u"2/15/1999", Key::Today, u"03/05/2024"},
        {u"1/15/1753", Key::PageUp, u"01/01/1753"},
        {u"1/1/1753", Key::Left, u"01/01/1753"},
        {u"5/1/9999", Key::CtrlPageDown, u"12/31/9999"},
    };
    for (const auto& [start, key, end] : cases) {
        const auto press = [key = key](Calendar& calendar) {
            calendar.KeyDown(key);
            EXPECT_TRUE(calendar.IsOpen());
            calendar.KeyDown(Key::Enter);
        };
        EXPECT_EQ(Chosen(start, press), end) << testing::PrintToString(start);
    }
}

TEST_F(CalendarTest, OnlyAChosenDayComesBack) {
    EXPECT_EQ(Chosen(u"", [](Calendar& calendar) { calendar.KeyDown(Key::Escape); }), u"");
    EXPECT_EQ(Chosen(u"", [](Calendar& calendar) { calendar.KeyDown(Key::Right); }), u"");
    const auto closed = [](Calendar& calendar) {
        calendar.Close();
        calendar.KeyDown(Key::Enter);
    };
    EXPECT_EQ(Chosen(u"", closed), u"");
    const auto clicks = [](Calendar& calendar) {
        calendar.ClickDay(Calendar::kLastDay + std::chrono::days(1));
        calendar.ClickDay(Calendar::kFirstDay);
        calendar.ClickDay(Calendar::kLastDay);
    };
    EXPECT_EQ(Chosen(u"", clicks), u"01/01/1753");
}

TEST_F(CalendarTest, TakesItsArgumentsBeforeItOpensAndRefreshesTheFormThatIsStillThere) {
    const auto window = std::make_shared<HostWindow>();
    auto date = std::make_unique<std::u16string>(u"March 7, 2004");
    desktop_.OnCalendar([&](Calendar& calendar) {
        date.reset();
        EXPECT_EQ(calendar.Anchor(), (PopupAnchor{PopupEdge::Left, 8000, {}, 700}));
        EXPECT_EQ(window->refreshes, 0);
        calendar.KeyDown(Key::Enter);
    });
    EXPECT_EQ(utils_->ShowCalendar(7999.6F, NAN, 700, *date, u"", window), u"03/07/2004");
    EXPECT_EQ(window->refreshes, 1);
    desktop_.OnCalendar([&](Calendar&) { window->exists = false; });
    utils_->ShowCalendarAndCalculateCoordinates(nullptr, u"", u"", window);
    EXPECT_EQ(window->refreshes, 1);
}

TEST_F(CalendarTest, AFaultIsLoggedAndGivesNoDay) {
    EXPECT_EQ(utils_->ShowCalendar(), u"");  // the script holds no answer
    Services::Install(nullptr);
    EXPECT_EQ(utils_->ShowCalendarAndCalculateCoordinates(), u"");
    const std::string log = ReadFile(machine_.ownFolder / "Error.Log");
    const std::string prefix = "\tError in Utils.ShowCalendar ";
    EXPECT_NE(log.find(prefix + "Invalid argument: no answer for the calendar"), log.npos) << log;
    EXPECT_TRUE(log.ends_with(prefix + "Object not set: current Utils\r\n")) << log;
}

}  // namespace
}  // namespace halvek
