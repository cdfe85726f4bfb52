// SPDX-License-Identifier: MIT
#include "tests/CleanState.h"
#include "tests/FaultOf.h"

#include <gmock/gmock.h>

namespace halvek {
namespace {

using UtilsTest = CleanState;

TEST_F(UtilsTest, EveryObjectReadsTheOneSession) {
    utils_->InitUtils(u"a.log", u"Front Desk ", u"clinic ", true, u"2.4.1 ");
    utils_->InitPrefs(StringArray(1, 16), 0x010203, 0x040506, -1, 0x0A0B0C);
    utils_->InitOtherSettings(1, 2, u"-", 1.1, 255);
    utils_->SpecialMode(u"check security ");
    utils_->EntityListForUser(u"7,9 ");
    utils_->RemoteSettings(u"remote ");
    utils_->AppDataFolderUser(u"/nina");
    utils_->AppDataFolderCommon(u"/clinic");
    const auto other = Utils::Create();
    EXPECT_EQ(other->AppName() + other->AppType() + other->ExeFileStamp() + other->SpecialMode() +
                  other->EntityListForUser() + other->RemoteSettings() + other->CodeDelimiter(),
              u"Front Desk clinic 2.4.1 check security 7,9 remote -");
    EXPECT_TRUE(other->DBG());
    const Color colors[] = {other->FormSkinColor(), other->FormTextColor(), other->FormTopColor(),
                            other->RequiredFieldBackColor(), other->ScrollBarWidth()};
    EXPECT_THAT(colors, testing::ElementsAre(0x010203, 0x040506, -1, 0x0A0B0C, 255));
    EXPECT_EQ(other->ColumnAdjustValue(), 1.1f);
    EXPECT_EQ(other->AppDataFolderUser() + other->AppDataFolderCommon(), u"");
    EXPECT_EQ(utils_->AppDataFolderUser() + utils_->AppDataFolderCommon(), u"/nina/clinic");
}

TEST_F(UtilsTest, OnlyTheCurrentUtilsOutlivesItsHost) {
    Utils::Create()->LogError(u"works before InitUtils");
    EXPECT_NE(Log(), "(missing)");
    EXPECT_EQ(Utils::CurrentUtils(), nullptr);
    const std::weak_ptr<Utils> first = utils_;
    utils_->InitUtils(u"", u"First", u"", false, u"");
    utils_.reset();
    Utils::CurrentUtils()->InitUtils(u"", u"Again", u"", true, u"");
    EXPECT_EQ(Utils::CurrentUtils(), first.lock());

    const auto second = Utils::Create();
    second->InitUtils(u"", u"Second", u"", false, u"");
    EXPECT_TRUE(first.expired());
    EXPECT_EQ(Utils::CurrentUtils(), second);
    Utils::Create()->InitUtils(u"", u"Third", u"", false, u"");
    EXPECT_EQ(second->AppName(), u"Third");
}

TEST_F(UtilsTest, ArgumentsMayBeViewsOfTheStateThatTheyReplace) {
    const std::u16string name(100, u'n'), type(200, u't');
    utils_->InitUtils(name, name, type, false, u"stamp");
    Session& session = TheSession();
    utils_->InitUtils(session.exeFileStamp, session.appType, session.appName, false,
                      session.appName);
    EXPECT_EQ(utils_->AppName(), type);
    EXPECT_EQ(utils_->AppType() + utils_->ExeFileStamp(), name + name);
    EXPECT_EQ(session.errFileName, u"stamp");

    utils_->SpecialMode(type);
    utils_->SpecialMode(TextIn(std::u16string_view(session.specialMode).substr(1)));
    EXPECT_EQ(utils_->SpecialMode(), type.substr(1));
    EXPECT_EQ(FaultOf([&] { utils_->ColorArray(); }), 9);
    utils_->InitPrefs(StringArray(0, {name, type}), 0, 0, 0, 0);
    utils_->InitPrefs(session.colorArray, 0, 0, 0, 0);
    EXPECT_EQ(utils_->ColorArray()[1], type);
}

TEST_F(UtilsTest, ABinWhoseKeyDiffersInLetterCaseIsRefusedAndLogged) {
    utils_->AddBin(u"Visit", u"1", u"T");
    utils_->AddBin(u"vISIT", u"2", u"U");
    EXPECT_EQ(desktop_.Beeps(), 1);
    EXPECT_THAT(Log(), testing::HasSubstr("\tError in Utils.AddBin "));
    EXPECT_EQ(utils_->GetBinData(u"Visit"), u"1");
    utils_->RemoveBin(u"Visit");
    utils_->AddBin(u"vISIT", u"2", u"U");
    EXPECT_EQ(utils_->GetBinData(u"vISIT"), u"2");
    utils_->ClearAllBins();
    EXPECT_FALSE(utils_->BinExists(u"vISIT"));
}

}  // namespace
}  // namespace halvek
