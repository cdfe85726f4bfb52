// SPDX-License-Identifier: MIT
#include "tests/FaultOf.h"

#include <halvekutils/base/StringArray.h>
#include <halvekutils/base/StringTable.h>

#include <gtest/gtest.h>

#include <limits>

namespace halvek {
namespace {

constexpr std::int32_t kMin = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kMax = std::numeric_limits<std::int32_t>::max();

TEST(StringArray, KeepsItsBoundsAndFaultsOutsideThem) {
    const std::pair<std::int32_t, std::int32_t> rows[] = {{1, 16}, {-3, 2},      {0, -1},
                                                          {5, 4},  {kMax, kMax}, {kMin, kMin}};
    for (const auto& [lower, upper] : rows) {
        StringArray texts(lower, upper);
        EXPECT_EQ(std::pair(texts.LBound(), texts.UBound()), std::pair(lower, upper));
        if (lower <= upper) texts[lower] = texts[upper] = u"x";
        for (const std::int64_t outside : {lower - std::int64_t{1}, upper + std::int64_t{1}}) {
            const auto index = static_cast<std::int32_t>(outside);  // may come round to far away
            EXPECT_EQ(FaultOf([&] { texts[index]; }), 9) << index;
        }
    }
    StringArray unallocated;
    EXPECT_EQ(FaultOf([&] { unallocated.UBound(); }), 9);
    EXPECT_EQ(FaultOf([&] { unallocated[0]; }), 9);
    EXPECT_EQ(FaultOf([&] { unallocated.Append(u"x"); }), 9);
    EXPECT_NE(unallocated, StringArray(0, -1));
}

TEST(StringTable, KeepsItsContentsWhenColumnsComeAndGo) {
    StringTable table(2, 2);
    table.At(0, 0) = table.At(0, 1) = table.At(1, 1) = u"x";
    table.At(1, 0) = u"y";
    table.ResizeColumns(1);
    EXPECT_EQ(FaultOf([&] { table.At(0, 1); }), 9);
    table.ResizeColumns(3);
    EXPECT_EQ(table.At(0, 0) + table.At(1, 0), u"xy");
    EXPECT_EQ(table.At(0, 1) + table.At(1, 1) + table.At(0, 2) + table.At(1, 2), u"");
    for (const auto& [row, column] : {std::pair{2, 0}, {0, 3}, {-1, 1}, {1, -1}, {kMin, kMax}}) {
        EXPECT_EQ(FaultOf([&, r = row, c = column] { table.At(r, c); }), 9) << row << ' ' << column;
    }
    EXPECT_EQ(FaultOf([&] { table.ResizeColumns(-1); }), 9);
}

}  // namespace
}  // namespace halvek
