// SPDX-License-Identifier: MIT
#include "tests/CleanState.h"

namespace halvek {
namespace {

// What its keys do is in the stories.

struct CalendarTest : CleanState {
    /// The day that it opens on, on 3/5/2024.
    std::u16string Opened(TextIn date = {}, TextIn fallback = {}, bool converts = false) {
        Start();
        desktop_.OnCalendar([](Calendar& calendar) { calendar.KeyDown(Calendar::Key::Enter); });
        return utils_->ShowCalendar(-1, -1, -1, date, fallback, nullptr, converts);
    }
};

TEST_F(CalendarTest, OpensOnTheDateOrTheDefaultOrToday) {
    EXPECT_EQ(Opened(), u"03/05/2024");
    EXPECT_EQ(Opened(u"12/31/1752", u"12/31/1752"), u"03/05/2024");
    for (const TextIn day : {u"  3/7/2004  ", u"Mar 7, 2004 11:59 PM"}) {
        EXPECT_EQ(Opened(day, u"1/2/2003"), u"03/07/2004");
    }
    for (const TextIn noDay : {u"", u"2/30/2004", u"12/31/1752", u"03072004"}) {
        EXPECT_EQ(Opened(noDay, u"1/2/2003"), u"01/02/2003");
    }
    EXPECT_EQ(Opened(u"03072004", u"", true), u"03/07/2004");
    EXPECT_EQ(Opened(u"3/7/04", u"", true), u"03/07/2004");
    machine_.now = MakeDateTime(1600, 1, 1);  // a clock that is set back
    EXPECT_EQ(Opened(), u"01/01/1753");
}

}  // namespace
}  // namespace halvek
