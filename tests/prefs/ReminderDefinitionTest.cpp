// SPDX-License-Identifier: MIT
#include <halvekutils/prefs/ReminderDefinition.h>

#include <gtest/gtest.h>

namespace halvek {
namespace {

TEST(ReminderDefinition, LeadsFromATitleToItsLinesPastTabsWithoutOne) {
    ReminderDefinition reminder;
    EXPECT_EQ(reminder.TabNumber(1), 0);
    reminder.PopulateReminder(u"4711", u"çRecallæin MayçæuntitledçBalanceæ$25.00ç");
    const StringArray titles = reminder.Tabs();
    ASSERT_EQ(titles, StringArray(1, {u"Recall", u"Balance"}));
    const std::u16string lines[] = {u"in May", u"$25.00"};
    for (std::int32_t i = 1; i <= titles.UBound(); ++i) {
        EXPECT_EQ(reminder.TabData(reminder.TabNumber(i))[1], lines[i - 1]);
    }
    EXPECT_EQ(reminder.TabNumber(0) + reminder.TabNumber(3) + reminder.TabNumber(-1), 0);
}

}  // namespace
}  // namespace halvek
