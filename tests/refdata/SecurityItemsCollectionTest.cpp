// SPDX-License-Identifier: MIT
#include "tests/CleanState.h"
#include "tests/FaultOf.h"

#include <halvekutils/refdata/SecurityItemsCollection.h>

#include <tuple>

namespace halvek {
namespace {

using namespace std::string_view_literals;

/// The rights of an item as their digit's value.
std::size_t RightsOf(const SecurityItem& item) {
    return (item.AllowRead() ? 8u : 0u) + (item.AllowAdd() ? 4u : 0u) +
           (item.AllowModify() ? 2u : 0u) + (item.AllowDelete() ? 1u : 0u);
}

/// "key=digit" of each item.
std::u16string Shown(const std::shared_ptr<const SecurityItemsCollection>& items) {
    std::u16string shown;
    for (const auto& item : items) {
        shown += shown.empty() ? u"" : u" ";
        shown += item->ItemKey() + u'=' + u"0123456789ABCDEF"[RightsOf(*item)];
    }
    return shown;
}

class SecurityItemsCollectionTest : public CleanState {
  protected:
    std::shared_ptr<SecurityItemsCollection> Build(TextIn data) {
        utils_->BuildSecurityCollection(data);
        return utils_->GetSecurityItemsCollection();
    }
};

TEST_F(SecurityItemsCollectionTest, NoRightsCharacterGrantsMoreThanItsDigit) {
    for (int code = 0; code <= 0xFFFF; ++code) {
        const auto character = static_cast<char16_t>(code);
        const std::size_t at = u"0123456789ABCDEF??????????abcdef"sv.find(character);
        const auto items = Build(std::u16string(u"K") + character);
        const bool digit = character != u'?' && at != TextIn::npos;
        ASSERT_EQ(RightsOf(*items->Item(1)), digit ? at % 16 : 0) << code;
        ASSERT_EQ(RightsOf(*items->Item(u"other")), 0u) << code;
    }
}

TEST_F(SecurityItemsCollectionTest, LogsADroppedItemAndGoesOn) {
    EXPECT_EQ(Shown(Build(u"PATIENTS8æpatientsFæLAST1")), u"PATIENTS=8 LAST=1");
    EXPECT_TRUE(Log().ends_with("error: patients Key already in the collection: patients\r\n"));
    EXPECT_EQ(desktop_.Beeps(), 0);
}

TEST_F(SecurityItemsCollectionTest, FullAccessGrantsEveryRightAtEachLookUp) {
    utils_->SpecialMode(u"check security");
    const auto old = Build(u"PATIENTS8æREPORTS4");
    const auto full = Build(u"***");
    EXPECT_EQ(full->Count(), 0);
    const auto found = full->Item(u"ANYTHING");
    EXPECT_EQ(Shown(full), u"ANYTHING=F");
    EXPECT_EQ(full->Item(u"anything"), found);
    EXPECT_EQ(Shown(full), u"anything=F") << "the key of the last look-up";
    EXPECT_EQ(full->Item(1), found);
    EXPECT_EQ(Shown(full), u"1=F");
    EXPECT_EQ(Shown(old), u"PATIENTS=8 REPORTS=4") << "a loop looks nothing up";
    old->Item(u"patients");
    EXPECT_EQ(Shown(old), u"patients=F REPORTS=4");
    EXPECT_EQ(Log(), "(missing)");
}

TEST_F(SecurityItemsCollectionTest, AnOrdinaryBuildEndsFullAccessInEveryCollection) {
    const auto old = Build(u"A8æB4");
    const auto full = Build(u"***");
    old->Item(u"A");
    utils_->ClearSecurityCollection();
    EXPECT_EQ(utils_->GetSecurityItemsCollection(), nullptr);
    EXPECT_EQ(RightsOf(*full->Item(u"AFTER CLEAR")), 15u);

    const auto rebuilt = Build(u"A1");
    EXPECT_EQ(Utils::Create()->GetSecurityItemsCollection(), rebuilt);
    for (const auto& items : {old, full, rebuilt}) {
        EXPECT_EQ(RightsOf(*items->Item(u"NEW")), 0u);
        EXPECT_EQ(RightsOf(*items->Item(77)), 0u);
    }
    EXPECT_EQ(RightsOf(*old->Item(u"B")) + RightsOf(*old->Item(2)), 8u);
    EXPECT_EQ(RightsOf(*old->Item(u"A")), 15u) << "granted before, and kept";
    EXPECT_EQ(RightsOf(*full->Item(u"AFTER CLEAR")), 15u);
}

TEST_F(SecurityItemsCollectionTest, RemembersAMissingKeyAndLogsItOnlyWhenAsked) {
    const std::tuple<TextIn, bool, bool> rows[] = {
        {u"Check Security", false, false}, {u"a,check security,b", false, true}, {u"", true, true}};
    for (const auto& [specialMode, debugMode, logged] : rows) {
        Start(debugMode);
        utils_->SpecialMode(specialMode);
        const int beeps = desktop_.Beeps();
        const auto items = Build(u"A8");
        const auto missing = items->Item(u"Missing");
        EXPECT_EQ(Log().ends_with("\tMissing security item was not found\r\n"), logged);
        EXPECT_EQ(items->Item(u"MISSING"), missing);
        EXPECT_EQ(Shown(items), u"A=8 Missing=0");
        EXPECT_EQ(desktop_.Beeps() - beeps, logged ? 1 : 0) << "once only";
        EXPECT_TRUE(utils_->ExistsInColl(items, u"fetched")) << "by a look-up like any other";
    }
}

TEST_F(SecurityItemsCollectionTest, AMissingPositionTakesTheEmptyKeyOnce) {
    for (const std::int32_t position : {3, 0, -1}) {
        const auto items = Build(u"A8");
        const auto missing = items->Item(position);
        EXPECT_EQ(Shown(items), u"A=8 =0");
        EXPECT_EQ(items->Item(u""), missing);
        EXPECT_EQ(FaultOf([&] { items->Item(position); }), 457) << position;
        EXPECT_EQ(items->Count(), 2);
    }
    const auto full = Build(u"***");
    full->Item(3);
    EXPECT_EQ(Shown(full), u"3=F");
    EXPECT_EQ(FaultOf([&] { full->Item(3); }), 457);
}

TEST_F(SecurityItemsCollectionTest, ALoopSurvivesARebuildAndSeesLaterItems) {
    for (const auto& item : utils_->GetSecurityItemsCollection()) FAIL() << "null holds " << item;
    std::u16string seen;
    Build(u"A8æB4");
    for (const auto& item : utils_->GetSecurityItemsCollection()) {
        if (seen.empty()) {
            for (int i = 0; i < 100; ++i) utils_->GetSecurityItemsCollection()->Item(u"C");
            Build(u"X8");
        }
        seen += item->ItemKey();
    }
    EXPECT_EQ(seen, u"ABC");
}

}  // namespace
}  // namespace halvek
