#include "tests/CleanState.h"

#include <gtest/gtest.h>

namespace halvek {
namespace {

class UtilsHelpTest : public CleanState {
  protected:
    void SetUp() override {
        utils_->InitUtils(u"", u"Front Desk", u"", false, u"");
        WriteFile(folder_ / "desk.chm", "help");
    }

    /// The stock message and the log after a call that finds no file.
    void ExpectNotFound(TextIn path) {
        ASSERT_FALSE(desktop_.StockMessages().empty());
        const auto& [text, icon, title] = desktop_.StockMessages().back();
        EXPECT_EQ(text, u"File " + path.Str() + u" is not found.");
        EXPECT_EQ(icon, StockIcon::Critical);
        EXPECT_EQ(title, u"Front Desk");
    }

    std::shared_ptr<Utils> utils_ = Utils::Create();
};

TEST_F(UtilsHelpTest, TellsOfAMissingFile) {
    EXPECT_EQ(utils_->HelpFilePath(), u"");
    EXPECT_FALSE(utils_->ShowHelp(0, 1));
    ExpectNotFound(u"");
    utils_->InitHelp(u"/none/desk.chm");
    EXPECT_FALSE(utils_->ShowHelpByTopic(7, u"::/a.htm"));
    ExpectNotFound(u"/none/desk.chm");
    EXPECT_FALSE(utils_->ShowHelp(7, 1, u"C:\\none.chm"));
    ExpectNotFound(u"C:\\none.chm");
    EXPECT_TRUE(desktop_.HelpShown().empty());
}

TEST_F(UtilsHelpTest, OpensTheGivenFileOrTheStoredOne) {
    const std::u16string path = (folder_ / "desk.chm").u16string();
    utils_->InitHelp(path);
    EXPECT_TRUE(utils_->ShowHelp(0, -3));
    utils_->InitHelp(u"/none.chm");
    EXPECT_TRUE(utils_->ShowHelpByTopic(0, u"::/a.htm#b", path));
    ASSERT_EQ(desktop_.HelpShown().size(), 2u);
    EXPECT_EQ(desktop_.HelpShown()[0].file, folder_ / "desk.chm");
    EXPECT_EQ(desktop_.HelpShown()[0].contextId, -3);
    EXPECT_EQ(desktop_.HelpShown()[1].contextId, std::nullopt);
    EXPECT_EQ(desktop_.HelpShown()[1].topic, u"::/a.htm#b");
    EXPECT_TRUE(desktop_.StockMessages().empty());
}

}  // namespace
}  // namespace halvek
