// SPDX-License-Identifier: MIT
#include <halvekutils/base/CharacterScan.h>

#include <gtest/gtest.h>

#include <string>

namespace halvek {
namespace {

TEST(CharacterScan, CountsMoreThanItsCountersHold) {
    const std::u16string bars(200'000, u'|');
    EXPECT_EQ(CountOf(bars, u'|'), bars.size());
    EXPECT_EQ(CountOfPair(u'~' + bars, u'~', u'|'), 1u);
    EXPECT_EQ(CountOfPair(bars + u'~', u'|', u'~'), 1u);
}

}  // namespace
}  // namespace halvek
