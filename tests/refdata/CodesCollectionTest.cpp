// SPDX-License-Identifier: MIT
#include "tests/LogTest.h"

#include <halvekutils/base/RuntimeError.h>
#include <halvekutils/refdata/CodesCollection.h>

namespace halvek {
namespace {

class CodesCollectionTest : public CleanState {
  protected:
    std::shared_ptr<CodesCollection> Build(TextIn data) {
        utils_->BuildCodesCollection(data);
        return utils_->GetCodesCollection();
    }
};

TEST_F(CodesCollectionTest, KeepsTheFirstOfTwoEqualKeysAndLogsTheSecond) {
    for (const bool debugMode : {false, true}) {
        const int beeps = desktop_.Beeps();
        Start(debugMode);
        const auto codes = Build(u"Firstæabcæ1æ1ææ|SecondæABCæ0æ0ææ|LastæZæ0æ0ææ");
        ASSERT_EQ(codes->Count(), 2);
        EXPECT_EQ(codes->Item(u"ABC")->CodeDescription(), u"First");
        EXPECT_EQ(codes->Item(2)->CodeDescription(), u"Last");
        EXPECT_EQ(desktop_.Beeps() - beeps, debugMode ? 1 : 0);
    }
    const std::string message = "Error adding to CodesCollection in HalvekUtils.Add:\r\n" +
                                ToUtf8(RuntimeError(Fault::DuplicateKey, u"ABC").Description()) +
                                "\r\n\r\nPossible duplicate CodeKey/CodeDescription:  ABC/Second";
    EXPECT_EQ(Log(), Line(message) + Line(message));
}

TEST_F(CodesCollectionTest, ARebuildLeavesTheHostsCollectionAlone) {
    EXPECT_EQ(utils_->GetCodesCollection(), nullptr);
    const auto old = Build(u"OneæAæ1æ1ææ|TwoæBæ1æ1ææ");
    EXPECT_EQ(Build(u"NewæAæ1æ1ææ")->Item(u"a")->CodeDescription(), u"New");
    EXPECT_EQ(old->Item(u"A")->CodeDescription() + old->Item(2)->CodeKey(), u"OneB");
}

}  // namespace
}  // namespace halvek
