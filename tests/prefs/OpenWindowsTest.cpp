// SPDX-License-Identifier: MIT
#include "tests/CleanState.h"

#include <halvekutils/prefs/OpenWindows.h>

#include <algorithm>
#include <limits>

namespace halvek {
namespace {

constexpr auto kLimits = std::numeric_limits<std::int32_t>{};

/// "type handle" of every column but the empty first.
std::u16string Shown(const StringTable& table) {
    EXPECT_EQ(table.At(0, 0) + table.At(1, 0), u"");
    std::u16string shown;
    for (std::int32_t column = 1; column < table.Columns(); ++column) {
        shown += (column == 1 ? u"" : u", ") + table.At(0, column) + u' ' + table.At(1, column);
    }
    return shown;
}

class OpenWindowsTest : public CleanState {
  protected:
    std::shared_ptr<OpenWindows> windows_ = utils_->OpenWindows();
};

TEST_F(OpenWindowsTest, AnIndexThatDoesNotExistGivesNothingAndChangesNothing) {
    windows_->AddItem(u"A", 100);
    windows_->AddItem(u"", kLimits.min());
    EXPECT_EQ(windows_->GetItem(2), StringArray(0, {u"", u"-2147483648"}));
    for (const std::int32_t index : {0, -1, kLimits.min(), 3, kLimits.max()}) {
        const int beeps = desktop_.Beeps();
        EXPECT_EQ(windows_->GetItem(index), StringArray(0, {u"", u""})) << index;
        EXPECT_EQ(desktop_.Beeps() - beeps, index > 2 ? 1 : 0) << index;
        EXPECT_FALSE(windows_->RemoveItem(index));
        EXPECT_EQ(Shown(windows_->GetAll()), u"A 100,  -2147483648");
    }
    EXPECT_EQ(std::ranges::count(Log(), '\n'), 5);
    EXPECT_TRUE(Log().ends_with("\tOpenWindows: RemoveItem Subscript out of range\r\n"));
    windows_->ClearAll();
    EXPECT_EQ(Shown(windows_->GetAll()), u"");
}

TEST_F(OpenWindowsTest, HandsOutCopiesOfOneRegistryForEachUtils) {
    EXPECT_NE(Utils::Create()->OpenWindows(), windows_);
    windows_->AddItem(u"A", 1);
    StringTable copy = windows_->GetAll();
    copy.At(0, 1) = u"changed";
    EXPECT_EQ(Shown(windows_->GetAll()), u"A 1");
    for (std::int32_t i = 2; i <= 20'000; ++i) windows_->AddItem(u"A", i);
    EXPECT_EQ(windows_->GetItem(20'000)[1], u"20000");
    EXPECT_TRUE(windows_->RemoveItem(2) && windows_->RemoveItem(19'999));
    EXPECT_EQ(windows_->GetItem(2)[1] + windows_->GetItem(windows_->Count())[1], u"319999");
}

}  // namespace
}  // namespace halvek
