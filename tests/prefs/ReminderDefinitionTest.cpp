// SPDX-License-Identifier: MIT
#include <halvekutils/base/Utf8.h>
#include <halvekutils/prefs/ReminderDefinition.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <random>
#include <string>
#include <string_view>
#include <utility>

namespace halvek {
namespace {

using namespace std::string_view_literals;

std::u16string Joined(const StringArray& array, std::int32_t from) {
    std::u16string joined;
    for (std::int32_t i = from; i <= array.UBound(); ++i) {
        joined += (i == from ? u"" : u"/") + array[i];
    }
    return joined;
}

/// The lines of all tabs, each tab in brackets.
std::u16string LinesOf(const ReminderDefinition& reminder) {
    std::u16string lines;
    for (std::int16_t tab = 1; reminder.TabData(tab).IsAllocated(); ++tab) {
        EXPECT_EQ(reminder.TabData(tab).LBound(), 0);
        EXPECT_EQ(reminder.TabData(tab)[0], u"");
        lines += u'[' + Joined(reminder.TabData(tab), 1) + u']';
    }
    return lines;
}

TEST(ReminderDefinition, ReadsTabsTitlesAndLines) {
    const struct {
        std::u16string_view data, titles, lines;
        bool alert, patient;
    } rows[] = {
        {u"AllergiesæPenicillinæP-Latex gloves onlyçBalanceæ-Past due 90 days£1",
         u"Allergies/Balance", u"[Penicillin/P-Latex gloves only][-Past due 90 days]", true, true},
        {u"Aææxææyæ", u"A", u"[x/y]", false, false},
        {u"æp-x", u"", u"[p-x]", false, true},
        {u"AæxççBæy", u"A/B", u"[x][][y]", false, false},
        {u"çAæxç", u"A", u"[][x][]", false, false},
        {u"P-titleæ-P-xæPæpxæ P-", u"P-title", u"[-P-x/P/px/ P-]", false, false},
        {u"Aæx£12", u"A", u"[x]", true, false},
        {u"Aæx£ 1", u"A", u"[x]", false, false},
        {u"Aæx£0£1çBæP-y", u"A", u"[x]", false, false},
        {u"A\0æ\0P-"sv, u"A\0"sv, u"[\0P-]"sv, false, false},
    };
    for (const auto& row : rows) {
        ReminderDefinition reminder;
        reminder.PopulateReminder(u"A-17", row.data);
        EXPECT_EQ(reminder.AcctNo(), u"A-17");
        EXPECT_EQ(Joined(reminder.Tabs(), 1), row.titles) << ToUtf8(row.data);
        EXPECT_EQ(LinesOf(reminder), row.lines) << ToUtf8(row.data);
        EXPECT_EQ(reminder.SoundAlert(), row.alert) << ToUtf8(row.data);
        EXPECT_EQ(reminder.HasPatientSpecificData(), row.patient) << ToUtf8(row.data);
    }
}

}  // namespace
}  // namespace halvek
