#include "tests/CleanState.h"
#include "tests/FaultOf.h"

#include <halvekutils/base/RuntimeError.h>
#include <halvekutils/base/Utf8.h>
#include <halvekutils/core/Utils.h>

#include <gtest/gtest.h>

#include <gmock/gmock.h>

#include <memory>
#include <string>

namespace halvek {
namespace {

class UtilsTest : public CleanState {
  protected:
    std::shared_ptr<Utils> utils_ = Utils::Create();
};

TEST_F(UtilsTest, EveryObjectReadsTheOneComponentState) {
    utils_->InitUtils(u"a.log", u"Front Desk", u"clinic", true, u"2.4.1");
    utils_->InitPrefs(StringArray(1, 16), 0x010203, 0x040506, -1, 0x0A0B0C);
    utils_->InitOtherSettings(1, 2, u"-", 1.1, 255);
    utils_->SpecialMode(u"check security");
    utils_->EntityListForUser(u"7,9");
    utils_->RemoteSettings(u"remote");
    utils_->AppDataFolderUser(u"/home/nina");
    utils_->AppDataFolderCommon(u"/srv/clinic");
    const auto other = Utils::Create();
    EXPECT_EQ(other->AppName() + u'|' + other->AppType() + u'|' + other->ExeFileStamp(),
              u"Front Desk|clinic|2.4.1");
    EXPECT_EQ(other->SpecialMode() + u'|' + other->EntityListForUser() + u'|' +
                  other->RemoteSettings() + other->CodeDelimiter(),
              u"check security|7,9|remote-");
    EXPECT_TRUE(other->DBG());
    const Color colors[] = {other->FormSkinColor(), other->FormTextColor(), other->FormTopColor(),
                            other->RequiredFieldBackColor(), other->ScrollBarWidth()};
    EXPECT_THAT(colors, testing::ElementsAre(0x010203, 0x040506, -1, 0x0A0B0C, 255));
    EXPECT_EQ(other->ColumnAdjustValue(), 1.1f);
    EXPECT_EQ(other->AppDataFolderUser() + other->AppDataFolderCommon(), u"");
    EXPECT_EQ(utils_->AppDataFolderUser() + utils_->AppDataFolderCommon(),
              u"/home/nina/srv/clinic");
}

TEST_F(UtilsTest, ColorArrayIsCopiedBothWaysWithItsBounds) {
    EXPECT_EQ(FaultOf([&] { utils_->ColorArray(); }), 9);
    for (const std::int32_t lower : {1, 0, -3}) {
        StringArray colors(lower, lower + 15);
        colors[lower] = u"255";
        const StringArray given = colors;
        utils_->InitPrefs(colors, 0, 0, 0, 0);
        colors[lower] = u"changed by the host";
        StringArray taken = utils_->ColorArray();
        EXPECT_EQ(taken, given);
        taken[lower + 15] = u"changed by the host";
        EXPECT_EQ(utils_->ColorArray(), given);
    }
}

TEST_F(UtilsTest, CurrentUtilsIsHeldUntilAnotherTakesItsPlace) {
    EXPECT_EQ(Utils::CurrentUtils(), nullptr);
    const std::weak_ptr<Utils> first = utils_;
    utils_->InitUtils(u"", u"First", u"", false, u"");
    utils_.reset();
    ASSERT_FALSE(first.expired());
    Utils::CurrentUtils()->AddBin(u"key", u"data", u"");
    Utils::CurrentUtils()->InitUtils(u"", u"Again", u"", true, u"");
    EXPECT_EQ(Utils::CurrentUtils()->GetBinData(u"key"), u"data");

    const auto second = Utils::Create();
    second->InitUtils(u"", u"Second", u"", false, u"");
    EXPECT_TRUE(first.expired());
    EXPECT_EQ(Utils::CurrentUtils(), second);

    Utils::Create()->InitUtils(u"", u"Third", u"", false, u"");
    second->AddBin(u"key", u"data", u"");
    EXPECT_EQ(second->GetBinData(u"key"), u"data");
    EXPECT_EQ(second->AppName(), u"Third");
}

TEST_F(UtilsTest, AUtilsThatWasNeverCurrentEnds) {
    const std::weak_ptr<Utils> ended = utils_;
    utils_->AddBin(u"key", u"data", u"");
    utils_->BuildCodesCollection(u"OneæAæ1æ1ææ");
    utils_->LogError(u"works before InitUtils");
    utils_.reset();
    EXPECT_TRUE(ended.expired());
    EXPECT_EQ(Utils::Create()->GetCodesCollection()->Count(), 1);
    EXPECT_EQ(ReadFile(machine_.ownFolder / "Error.Log"),
              "03/05/24 09:07:03 AM\tnina\tworks before InitUtils\r\n");
}

TEST_F(UtilsTest, ArgumentsMayBeViewsOfTheStateThatTheyReplace) {
    const std::u16string name(100, u'n'), type(200, u't'), stamp(50, u's');
    utils_->InitUtils(name, name, type, false, stamp);
    ComponentState& state = State();
    utils_->InitUtils(state.exeFileStamp, state.appType, state.appName, false, state.appName);
    EXPECT_EQ(utils_->AppName(), type);
    EXPECT_EQ(utils_->AppType(), name);
    EXPECT_EQ(utils_->ExeFileStamp(), name);
    EXPECT_EQ(state.errFileName, stamp);

    utils_->SpecialMode(type);
    utils_->SpecialMode(TextIn(std::u16string_view(state.specialMode).substr(1)));
    EXPECT_EQ(utils_->SpecialMode(), type.substr(1));
    utils_->InitOtherSettings(0, 0, state.specialMode, 0, 0);
    utils_->InitOtherSettings(0, 0, TextIn(std::u16string_view(state.codeDelimiter).substr(150)), 0,
                              0);
    EXPECT_EQ(utils_->CodeDelimiter(), type.substr(151));
    utils_->InitPrefs(StringArray(0, {name, type}), 0, 0, 0, 0);
    utils_->InitPrefs(state.colorArray, 0, 0, 0, 0);
    EXPECT_EQ(utils_->ColorArray()[1], type);
}

TEST_F(UtilsTest, TextMembersReachTheTextFunctions) {
    StringArray array;
    std::u16string left, right;
    EXPECT_EQ(utils_->SplitStr(u"A^B", u"^", 2), u"B");
    EXPECT_EQ(utils_->CountInstances(u"a,b,,c", u","), 3);
    EXPECT_TRUE(utils_->StrToArr(u"A|B", u"|", array));
    EXPECT_EQ(array.UBound(), 2);
    EXPECT_TRUE(utils_->ChunkStrToArr(u"AB|CD|EF|", array, 4, u"|"));
    EXPECT_EQ(array[2], u"EF|");
    utils_->SplitLeftRight(u"key=value", u"=", left, right);
    EXPECT_EQ(left + u" " + right, u"key value");
    EXPECT_FALSE(utils_->ExistsInColl(nullptr, u"key"));
}

TEST_F(UtilsTest, BinsAreFoundByTheExactKeyOnly) {
    EXPECT_FALSE(utils_->BinExists(u"Visit"));
    EXPECT_EQ(utils_->GetBinData(u"Visit"), u"");
    utils_->RemoveBin(u"Visit");
    utils_->AddBin(u"Visit", u"1", u"T");
    utils_->AddBin(u"Visit", u"2", u"U");
    utils_->AddBin(u"", u"under the empty key", u"");
    EXPECT_EQ(utils_->GetBinData(u"Visit"), u"2");
    EXPECT_EQ(utils_->GetBinData(u""), u"under the empty key");
    for (const TextIn key : {u"visit", u"VISIT", u"Visit ", u"Visi"}) {
        utils_->RemoveBin(key);
        EXPECT_FALSE(utils_->BinExists(key)) << ToUtf8(key);
        EXPECT_EQ(utils_->GetBinData(key), u"") << ToUtf8(key);
    }
    EXPECT_TRUE(utils_->BinExists(u"Visit"));
    EXPECT_FALSE(Utils::Create()->BinExists(u"Visit"));
}

TEST_F(UtilsTest, ABinWhoseKeyDiffersInLetterCaseIsRefusedAndLogged) {
    utils_->AddBin(u"Visit", u"1", u"T");
    utils_->AddBin(u"vISIT", u"2", u"U");
    EXPECT_EQ(desktop_.Beeps(), 1);
    EXPECT_EQ(ReadFile(machine_.ownFolder / "Error.Log"),
              "03/05/24 09:07:03 AM\tnina\tError in Utils.AddBin " +
                  ToUtf8(RuntimeError(Fault::DuplicateKey, u"vISIT").Description()) + "\r\n");
    EXPECT_FALSE(utils_->BinExists(u"vISIT"));
    EXPECT_EQ(utils_->GetBinData(u"Visit"), u"1");
}

TEST_F(UtilsTest, ARemovedKeyCanBeAddedAgainInAnyLetterCase) {
    for (const TextIn key : {u"b", u"B"}) {
        utils_->AddBin(u"a", u"data of a", u"");
        utils_->AddBin(key, u"data of b", u"");
        utils_->AddBin(u"c", u"data of c", u"");
        utils_->RemoveBin(u"a");
        EXPECT_FALSE(utils_->BinExists(u"a"));
        EXPECT_EQ(utils_->GetBinData(key) + utils_->GetBinData(u"c"), u"data of bdata of c");
        utils_->RemoveBin(key);
    }
    utils_->ClearAllBins();
    EXPECT_FALSE(utils_->BinExists(u"c"));
    utils_->AddBin(u"C", u"new", u"");
    EXPECT_EQ(utils_->GetBinData(u"C"), u"new");
    EXPECT_EQ(desktop_.Beeps(), 0);
}

}  // namespace
}  // namespace halvek
