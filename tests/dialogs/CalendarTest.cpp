// SPDX-License-Identifier: MIT
#include "tests/CleanState.h"

namespace halvek {
namespace {

using Key = Calendar::Key;

/// On 3/5/2024.
struct CalendarTest : CleanState {
    std::u16string Chosen(const std::vector<Key>& keys, TextIn date = {}, TextIn fallback = {},
                          bool converts = false) {
        utils_->InitUtils(u"", u"Front Desk", u"", false, u"");
        desktop_.OnCalendar([keys](Calendar& calendar) {
            for (const Key key : keys) calendar.KeyDown(key);
        });
        return utils_->ShowCalendar(-1, -1, -1, date, fallback, nullptr, converts);
    }
    std::shared_ptr<Utils> utils_ = Utils::Create();
};

TEST_F(CalendarTest, OpensOnTheDateOrTheDefaultOrToday) {
    EXPECT_EQ(Chosen({Key::Enter}), u"03/05/2024");
    EXPECT_EQ(Chosen({Key::Enter}, u"12/31/1752", u"12/31/1752"), u"03/05/2024");
    for (const TextIn day : {u"  3/7/2004  ", u"Mar 7, 2004 11:59 PM"}) {
        EXPECT_EQ(Chosen({Key::Enter}, day, u"1/2/2003"), u"03/07/2004");
    }
    for (const TextIn noDay : {u"", u"2/30/2004", u"12/31/1752", u"03072004"}) {
        EXPECT_EQ(Chosen({Key::Enter}, noDay, u"1/2/2003"), u"01/02/2003");
    }
    EXPECT_EQ(Chosen({Key::Enter}, u"03072004", u"", true), u"03/07/2004");
    EXPECT_EQ(Chosen({Key::Enter}, u"3/7/04", u"", true), u"03/07/2004");
}

TEST_F(CalendarTest, GivesNoDayUnlessOneIsChosen) {
    EXPECT_EQ(Chosen({Key::Today, Key::Enter, Key::Right}, u"2/15/1999"), u"03/05/2024");
    EXPECT_EQ(Chosen({Key::Escape, Key::Enter}), u"");
    EXPECT_EQ(Chosen({Key::Right}), u"");
}

}  // namespace
}  // namespace halvek
