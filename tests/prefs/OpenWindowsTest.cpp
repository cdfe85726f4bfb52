// SPDX-License-Identifier: MIT
#include "tests/CleanState.h"

#include <halvekutils/prefs/OpenWindows.h>

#include <algorithm>
#include <limits>

namespace halvek {
namespace {

constexpr auto kLimits = std::numeric_limits<std::int32_t>{};

using OpenWindowsTest = CleanState;

TEST_F(OpenWindowsTest, AnIndexThatDoesNotExistGivesNothingAndChangesNothing) {
    const auto windows = utils_->OpenWindows();
    windows->AddItem(u"A", 100);
    windows->AddItem(u"", kLimits.min());
    const StringTable before = windows->GetAll();
    EXPECT_EQ(windows->GetItem(2), StringArray(0, {u"", u"-2147483648"}));
    for (const std::int32_t index : {0, -1, kLimits.min(), 3, kLimits.max()}) {
        const int beeps = desktop_.Beeps();
        EXPECT_EQ(windows->GetItem(index), StringArray(0, {u"", u""})) << index;
        EXPECT_EQ(desktop_.Beeps() - beeps, index > 2 ? 1 : 0) << index;
        EXPECT_FALSE(windows->RemoveItem(index));
        EXPECT_EQ(windows->GetAll(), before) << index;
    }
    EXPECT_EQ(std::ranges::count(Log(), '\n'), 5);
    EXPECT_TRUE(Log().ends_with("\tOpenWindows: RemoveItem Subscript out of range\r\n"));
    EXPECT_NE(Utils::Create()->OpenWindows(), windows);
    windows->ClearAll();
    EXPECT_EQ(windows->GetAll(), StringTable(2, 1));
}

}  // namespace
}  // namespace halvek
