// SPDX-License-Identifier: MIT
#include <halvekutils/base/Utf8.h>
#include <halvekutils/selection/SelectionList.h>

#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <utility>
#include <vector>

namespace halvek {
namespace {

using Texts = std::vector<std::u16string>;

/// Every entry as code, description and "!" when it is deleted, joined by "/".
Texts EntriesOf(const SelectionList& list) {
    Texts entries;
    for (std::int32_t i = 2; i <= list.Count(); ++i) {
        std::u16string text(list.Code(i));
        text.append(u"/").append(list.Description(i)).append(list.IsDeleted(i) ? u"!" : u"");
        entries.push_back(text);
    }
    return entries;
}

TEST(SelectionList, CutsEntriesAndFieldsAsTheServerWritesThem) {
    const struct {
        const char16_t* values;
        Texts entries, withoutDeleted;
    } rows[] = {
        {u"H:", {u"/"}, {u"/"}},
        {u"", {}, {}},
        {u"H:A\tAlpha\t0:B\tBeta\t1:", {u"A/Alpha", u"B/Beta!", u"/"}, {u"A/Alpha", u"/"}},
        {u"H:A\t1:B\t0", {u"A/1!", u"B/0"}, {u"B/0"}},  // two fields: the second is the flag
        {u"H:1:2", {u"1/!", u"2/"}, {u"2/"}},           // one field: the code is the flag
        {u"H:A\tx\ty\t1:B\tx\t1", {u"A/x!", u"B/x"}, {u"B/x"}},
        {u"H:A\tx\t1:B\tx\t1\t0", {u"A/x!", u"B/x!"}, {}},  // the number of fields is the first's
        {u"H:A\tx\t01:B\tx\t 1", {u"A/x", u"B/x"}, {u"A/x", u"B/x"}},
        {u"H\t1:A\tx\t0", {u"A/x"}, {u"A/x"}},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(EntriesOf(SelectionList(row.values, false)), row.entries) << ToUtf8(row.values);
        EXPECT_EQ(EntriesOf(SelectionList(row.values, true)), row.withoutDeleted);
    }
}

TEST(SelectionList, LeavesOutTheLastEntryWhenTheOthersFillTheirBands) {
    const std::tuple<int, int, int> rows[] = {
        {1, 0, 0},   {2, 3, 2},   {10, 3, 10}, {11, 3, 10},
        {12, 6, 12}, {21, 6, 20}, {22, 9, 22}, {100'001, 30'000, 100'000}};
    for (const auto& [count, rowCount, lastShown] : rows) {
        std::u16string values = u"H";
        for (int i = 2; i <= count; ++i) values += u":X\tx\t0";
        const SelectionList list(values + u"YZ", false);
        EXPECT_EQ(list.RowCount(), rowCount) << count;
        EXPECT_EQ(list.LastShown(), lastShown) << count;
    }
}

TEST(SelectionList, FindsTheFirstShownEntryOfExactlyThisCode) {
    std::u16string values = u"HEAD:  A \tx\t0::a\ty\t0:A\tz\t0:It's\t:\u0141\u00E9\t:  \t:B C";
    const SelectionList list(values, false);
    const std::pair<const char16_t*, int> rows[] = {
        {u"A", 2},   {u"a", 4}, {u"It's", 6}, {u"\u0141\u00E9", 7},      {u"B C", 9}, {u"HEAD", 0},
        {u" A ", 0}, {u"", 0},  {u" ", 0},    {u"*** ALL CODES ***", 0}, {u"BC", 0},  {u"A\tx", 0}};
    for (const auto& [code, entry] : rows) EXPECT_EQ(list.Find(code), entry) << ToUtf8(code);
    EXPECT_TRUE(list.HasCode(1));
    EXPECT_FALSE(list.HasCode(3));
    EXPECT_FALSE(list.HasCode(8));
    // Entry 11 is the last and falls behind the only band; its code still counts as the longest.
    values += u":10:LAST ONE";
    const SelectionList full(values, false);
    EXPECT_EQ(full.Find(u"LAST ONE"), 0);
    EXPECT_EQ(full.LongestCodeLength(), 8);
}

TEST(SelectionList, TakesListsOfAnyShape) {
    const SelectionList empty(std::u16string(1'000'000, u':'), false);
    EXPECT_EQ(empty.LastShown(), 1'000'000);

    const SelectionList tabs(u"H:" + std::u16string(1'000'000, u'\t') + u"1", false);
    EXPECT_TRUE(tabs.IsDeleted(2));

    std::u16string many = u"H";
    for (std::size_t i = 0; i < 2'000'000; ++i) {
        many.append(u":CODE").append(1, u"ABCDE"[i % 5]).append(u"\tText\t0");
    }
    const SelectionList large(std::move(many), true);  // more than 50 MB
    EXPECT_EQ(large.Find(u"CODEE"), 6);
}

}  // namespace
}  // namespace halvek
