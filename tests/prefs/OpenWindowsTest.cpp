#include "tests/CleanState.h"

#include <halvekutils/base/Utf8.h>
#include <halvekutils/core/Utils.h>
#include <halvekutils/prefs/OpenWindows.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <memory>
#include <string>

namespace halvek {
namespace {

constexpr auto kLimits = std::numeric_limits<std::int32_t>{};

/// "type handle" of every column but the empty first.
std::u16string Shown(const StringTable& table) {
    EXPECT_EQ(table.Rows(), 2);
    EXPECT_EQ(table.At(0, 0) + table.At(1, 0), u"");
    std::u16string shown;
    for (std::int32_t column = 1; column < table.Columns(); ++column) {
        shown += (column == 1 ? u"" : u", ") + table.At(0, column) + u' ' + table.At(1, column);
    }
    return shown;
}

class OpenWindowsTest : public CleanState {
  protected:
    std::string Log() const { return ReadFile(machine_.ownFolder / "Error.Log"); }

    std::shared_ptr<Utils> utils_ = Utils::Create();
    std::shared_ptr<OpenWindows> windows_ = utils_->OpenWindows();
};

TEST_F(OpenWindowsTest, KeepsTheOrderWhileWindowsComeAndGo) {
    EXPECT_EQ(Shown(windows_->GetAll()), u"");
    EXPECT_FALSE(windows_->RemoveItem(1)) << "an empty registry has nothing to log";
    EXPECT_TRUE(windows_->AddItem(u"A", 100));
    EXPECT_TRUE(windows_->AddItem(u"B", 200));
    EXPECT_TRUE(windows_->AddItem(u"C", 300));
    EXPECT_TRUE(windows_->RemoveItem(2));
    EXPECT_EQ(Shown(windows_->GetAll()), u"A 100, C 300");
    EXPECT_EQ(windows_->Count(), 2);
    EXPECT_TRUE(windows_->AddItem(u"C", 300));
    EXPECT_TRUE(windows_->AddItem(u"", kLimits.min()));
    EXPECT_TRUE(windows_->RemoveItem(1));
    EXPECT_EQ(Shown(windows_->GetAll()), u"C 300, C 300,  -2147483648");
    EXPECT_EQ(windows_->GetAllByType(u"none such"), windows_->GetAll());
    EXPECT_TRUE(windows_->RemoveItem(3));
    windows_->ClearAll();
    EXPECT_EQ(windows_->Count(), 0);
    EXPECT_EQ(Shown(windows_->GetAll()), u"");
    EXPECT_EQ(Log(), "(missing)");
}

TEST_F(OpenWindowsTest, AnIndexThatDoesNotExistGivesNothingAndChangesNothing) {
    windows_->AddItem(u"A", 100);
    windows_->AddItem(u"B", -5);
    const struct {
        std::int32_t index;
        std::u16string type, handle;
        int beeps;
        bool removes;
    } rows[] = {{0, u"", u"", 0, false},
                {-1, u"", u"", 0, false},
                {kLimits.min(), u"", u"", 0, false},
                {3, u"", u"", 1, false},
                {kLimits.max(), u"", u"", 1, false},
                {1, u"A", u"100", 0, true},
                {1, u"B", u"-5", 0, true}};
    for (const auto& row : rows) {
        const int beeps = desktop_.Beeps();
        const StringArray item = windows_->GetItem(row.index);
        EXPECT_EQ(item, StringArray(0, {row.type, row.handle})) << row.index;
        EXPECT_EQ(desktop_.Beeps() - beeps, row.beeps) << row.index;

        const StringTable before = windows_->GetAll();
        const std::string log = Log();
        EXPECT_EQ(windows_->RemoveItem(row.index), row.removes);
        EXPECT_EQ(windows_->GetAll() == before, !row.removes);
        EXPECT_EQ(Log() == log, row.removes);
        if (row.removes) continue;
        EXPECT_TRUE(Log().ends_with("\tOpenWindows: RemoveItem Subscript out of range\r\n"));
    }
}

TEST_F(OpenWindowsTest, HandsOutCopiesOfOneRegistryForEachUtils) {
    EXPECT_EQ(utils_->OpenWindows(), windows_);
    EXPECT_NE(Utils::Create()->OpenWindows(), windows_);
    windows_->AddItem(u"A", 1);
    StringTable copy = windows_->GetAll();
    copy.At(0, 1) = u"changed";
    EXPECT_EQ(Shown(windows_->GetAll()), u"A 1");
    for (std::int32_t i = 2; i <= 20'000; ++i) windows_->AddItem(u"A", i);
    EXPECT_EQ(windows_->GetItem(20'000)[1], u"20000");
    EXPECT_EQ(Shown(copy), u"changed 1");
}

}  // namespace
}  // namespace halvek
