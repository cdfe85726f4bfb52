// SPDX-License-Identifier: MIT
#include "tests/qt/FormTest.h"

#include <halvekutils/qt/QtText.h>

#include <QAccessible>
#include <gtest/gtest.h>

#include <tuple>
#include <utility>
#include <vector>

namespace halvek {
namespace {

/// On 3/5/2024, in Germany.
struct CalendarFormTest : FormTest {
    CalendarFormTest() { QLocale::setDefault(QLocale(QLocale::German)); }
    ~CalendarFormTest() override { QLocale::setDefault(QLocale::system()); }

    /// What the user's acts choose; a calendar that they leave open is closed.
    QString Chosen(const User::Acts& acts) {
        const User user([&](QDialog& dialog) {
            acts(dialog);
            if (dialog.isVisible()) CloseRequest(dialog);
        });
        return ToQString(utils_->ShowCalendar(-1, -1, -1, u"3/7/2004"));
    }
};

TEST_F(CalendarFormTest, KeysActOnWhatHasTheFocus) {
    const std::pair<std::vector<QKeyCombination>, const char*> cases[] = {
        {{Qt::Key_1, Qt::ALT | Qt::Key_T, Qt::CTRL | Qt::Key_T, Qt::Key_Enter}, "03/07/2004"},
        {{Qt::SHIFT | Qt::Key_T, Qt::Key_Return}, "03/05/2024"},
        {{Qt::Key_Escape, Qt::Key_Return}, ""},
        {{Qt::Key_Tab, Qt::Key_Return}, ""},
        {{Qt::Key_Tab, Qt::Key_Escape}, ""},
        {{Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_Return}, "03/07/2004"},
    };
    for (const auto& [keys, day] : cases) EXPECT_EQ(Chosen(Keys(keys)), day);
}

TEST_F(CalendarFormTest, TheMarkedDayFollowsTheMonthAndYearAndIsToldInFull) {
    const char* const year = "qt_calendar_yearbutton";
    const std::tuple<const char*, std::vector<QKeyCombination>, const char*> steps[] = {
        {"qt_calendar_nextmonth", {Qt::Key_End}, "Friday, April 30, 2004"},
        {"qt_calendar_prevmonth", {Qt::Key_End, Qt::Key_PageUp}, "Sunday, February 29, 2004"},
        {year, {Qt::Key_1, Qt::Key_9, Qt::Key_9, Qt::Key_9}, "Sunday, February 29, 2004"},
        {year, {Qt::Key_Return}, "Sunday, February 28, 1999"},
        {year, {Qt::Key_2, Qt::Key_Escape}, "Sunday, February 28, 1999"},
        {year, {Qt::Key_Return, Qt::Key_T}, "Tuesday, March 5, 2024, today"},
        {"qt_calendar_nextmonth", {}, "Friday, April 5, 2024"},
        {"cmdToday", {}, "Tuesday, March 5, 2024, today"},
    };
    const auto act = [&](QDialog& dialog) {
        EXPECT_TRUE(dialog.rect().contains(Find(dialog, "MonthView1").geometry() |
                                           Find(dialog, "Command1").geometry()));
        for (const auto& [part, keys, told] : steps) {
            if (Find(dialog, part).isVisible()) Click(dialog, Find(dialog, part));
            Keys(keys)(dialog);
            QWidget& days = Find(dialog, "qt_calendar_calendarview");
            QAccessibleInterface* const day =
                QAccessible::queryAccessibleInterface(&days)->child(0);
            EXPECT_EQ(day->text(QAccessible::Name), told);
        }
    };
    EXPECT_EQ(Chosen(act), "");
}

}  // namespace
}  // namespace halvek
