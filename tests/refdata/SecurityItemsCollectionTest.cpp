#include "tests/CleanState.h"
#include "tests/FaultOf.h"

#include <halvekutils/base/Pieces.h>
#include <halvekutils/base/Utf8.h>
#include <halvekutils/core/Utils.h>
#include <halvekutils/refdata/SecurityItemsCollection.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <memory>
#include <new>
#include <random>
#include <set>
#include <string>
#include <string_view>

namespace {

int allocationsLeft = -1;  // below 0: memory never runs out

}  // namespace

void* operator new(std::size_t size) {
    if (allocationsLeft == 0) throw std::bad_alloc();
    if (allocationsLeft > 0) --allocationsLeft;
    if (void* const memory = std::malloc(size == 0 ? 1 : size)) return memory;
    throw std::bad_alloc();
}
void operator delete(void* memory) noexcept {
    std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}

namespace halvek {
namespace {

using namespace std::string_view_literals;

/// The rights of an item as their digit's value.
std::size_t RightsOf(const SecurityItem& item) {
    return (item.AllowRead() ? 8u : 0u) + (item.AllowAdd() ? 4u : 0u) +
           (item.AllowModify() ? 2u : 0u) + (item.AllowDelete() ? 1u : 0u);
}

/// What a rights character grants, written the long way round.
std::size_t ValueOf(char16_t character) {
    const std::size_t at = u"0123456789ABCDEFabcdef"sv.find(character);
    return at == std::u16string_view::npos ? 0 : at < 16 ? at : at - 6;
}

/// "key=digit" of each item.
std::u16string Shown(const SecurityItemsCollection& items) {
    std::u16string shown;
    for (const auto& item : items) {
        shown += shown.empty() ? u"" : u" ";
        shown += item->ItemKey() + u'=' + u"0123456789ABCDEF"[RightsOf(*item)];
    }
    return shown;
}

class SecurityItemsCollectionTest : public CleanState {
  protected:
    SecurityItemsCollectionTest() { SecurityItemsCollection::EndFullAccess(); }
    ~SecurityItemsCollectionTest() override { SecurityItemsCollection::EndFullAccess(); }

    std::shared_ptr<SecurityItemsCollection> Build(TextIn data) {
        utils_->BuildSecurityCollection(data);
        return utils_->GetSecurityItemsCollection();
    }

    std::string Log() const { return ReadFile(machine_.ownFolder / "Error.Log"); }

    std::shared_ptr<Utils> utils_ = Utils::Create();
};

TEST_F(SecurityItemsCollectionTest, NoRightsCharacterGrantsMoreThanItsDigit) {
    for (int code = 0; code <= 0xFFFF; ++code) {
        const auto character = static_cast<char16_t>(code);
        const auto items = Build(std::u16string(u"K") + character);
        ASSERT_EQ(RightsOf(*items->Item(1)), ValueOf(character)) << code;
        ASSERT_EQ(RightsOf(*items->Item(u"other")), 0u) << code;
    }
}

TEST_F(SecurityItemsCollectionTest, ReadsItemsAsKeyAndDigit) {
    const struct {
        std::u16string_view data, items;
    } rows[] = {
        {u"PATIENTSFæREPORTS8æSCHEDULEC", u"PATIENTS=F REPORTS=8 SCHEDULE=C"},
        {u"REPORTSf", u"REPORTS=F"},
        {u"", u""},
        {u"æ", u""},
        {u"ææA1ææB2æ", u"A=1 B=2"},
        {u"8", u"=8"},
        {u"8æF", u"=8"},
        {u"PATIENTSFæpatients8", u"PATIENTS=F"},
        {u"PATIENTS0æpatientsF", u"PATIENTS=0"},
        {u"É4æéF", u"É=4"},
        {u"A\0F"sv, u"A\0=F"sv},
        {u"AF\0"sv, u"AF=0"},
        {u"A F ", u"A F=0"},
        {u"***X", u"***=0"},
        {u"****", u"***=0"},
        {u"**", u"*=0"},
        {u"***æ", u"**=0"},
        {u"æ***", u"**=0"},
        {u" ***", u" **=0"},
        {u"***\0"sv, u"***=0"},
        {u"***æAF", u"**=0 A=F"},
    };
    for (const auto& row : rows) {
        Build(u"***");
        const auto items = Build(row.data);
        EXPECT_EQ(Shown(*items), row.items) << ToUtf8(row.data);
        EXPECT_EQ(RightsOf(*items->Item(u"ANYTHING")), 0u) << ToUtf8(row.data);
    }
}

TEST_F(SecurityItemsCollectionTest, LogsADroppedItemAndGoesOn) {
    EXPECT_EQ(Shown(*Build(u"PATIENTS8æpatientsFæLAST1")), u"PATIENTS=8 LAST=1");
    EXPECT_TRUE(
        Log().ends_with("\tAddSecurity Item error: patients Key already in the collection: "
                        "patients\r\n"))
        << Log();
    EXPECT_EQ(desktop_.Beeps(), 0);
}

TEST_F(SecurityItemsCollectionTest, FullAccessGrantsEveryRightAtEachLookUp) {
    utils_->InitUtils(u"", u"Front Desk", u"", true, u"");
    utils_->SpecialMode(u"check security");
    const auto old = Build(u"PATIENTS8æREPORTS4");
    const auto items = Build(u"***");
    EXPECT_EQ(items->Count(), 0);
    EXPECT_EQ(RightsOf(*items->Item(u"ANYTHING")), 15u);
    EXPECT_EQ(Shown(*items), u"ANYTHING=F");
    const auto found = items->Item(u"anything");
    EXPECT_EQ(Shown(*items), u"anything=F") << "the key of the last look-up";
    EXPECT_EQ(items->Item(1), found);
    EXPECT_EQ(Shown(*items), u"1=F");

    EXPECT_EQ(Shown(*old), u"PATIENTS=8 REPORTS=4") << "a loop looks nothing up";
    old->Item(u"patients");
    EXPECT_EQ(Shown(*old), u"patients=F REPORTS=4");
    EXPECT_EQ(Log(), "(missing)");
    EXPECT_EQ(desktop_.Beeps(), 0);
}

TEST_F(SecurityItemsCollectionTest, AnOrdinaryBuildEndsFullAccessInEveryCollection) {
    const auto old = Build(u"A8æB4");
    const auto full = Build(u"***");
    const auto granted = full->Item(u"GRANTED");
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
    EXPECT_EQ(RightsOf(*old->Item(u"B")), 4u);
    EXPECT_EQ(RightsOf(*old->Item(2)), 4u);
    EXPECT_EQ(RightsOf(*old->Item(u"A")), 15u) << "granted before, and kept";
    EXPECT_EQ(RightsOf(*full->Item(u"GRANTED")), 15u);
    EXPECT_EQ(full->Item(u"GRANTED"), granted);
}

TEST_F(SecurityItemsCollectionTest, NoFaultInABuildLeavesFullAccessOn) {
    const std::u16string data(u"A key too long to be kept without memory of its own8æB4");
    int steps = 0;
    for (bool failed = true; failed; ++steps) {
        const auto full = Build(u"***");
        allocationsLeft = steps;
        utils_->BuildSecurityCollection(data);
        failed = allocationsLeft == 0;
        allocationsLeft = -1;
        EXPECT_EQ(RightsOf(*full->Item(u"X")), 0u) << steps;
        if (const auto items = utils_->GetSecurityItemsCollection()) {
            EXPECT_EQ(RightsOf(*items->Item(u"X")), 0u) << steps;
        }
    }
    EXPECT_GT(steps, 5);
}

TEST_F(SecurityItemsCollectionTest, RemembersAMissingKeyAndLogsItOnlyWhenAsked) {
    const struct {
        std::u16string specialMode;
        bool debugMode;
        int logged;
    } rows[] = {{u"", false, 0},
                {u"Check Security", false, 0},
                {u"a,check security,b", false, 1},
                {u"", true, 1}};
    std::string log = "(missing)";
    for (const auto& row : rows) {
        if (row.debugMode) utils_->InitUtils(u"", u"Front Desk", u"", true, u"");
        utils_->SpecialMode(row.specialMode);
        const int beeps = desktop_.Beeps();
        const auto items = Build(u"A8");
        const auto missing = items->Item(u"Missing");
        const std::string line = "\tMissing security item was not found\r\n";
        EXPECT_EQ(Log().ends_with(line) && Log() != log, row.logged == 1);
        log = Log();
        EXPECT_EQ(items->Item(u"MISSING"), missing);
        EXPECT_EQ(Log(), log) << "once only";
        EXPECT_EQ(Shown(*items), u"A=8 Missing=0");
        EXPECT_EQ(desktop_.Beeps() - beeps, row.logged);
        EXPECT_TRUE(utils_->ExistsInColl(items, u"fetched")) << "by a look-up like any other";
    }
}

TEST_F(SecurityItemsCollectionTest, AMissingPositionTakesTheEmptyKeyOnce) {
    constexpr auto kLimits = std::numeric_limits<std::int32_t>{};
    for (const std::int32_t position : {3, 0, -1, kLimits.min(), kLimits.max()}) {
        const auto items = Build(u"A8");
        const auto missing = items->Item(position);
        EXPECT_EQ(Shown(*items), u"A=8 =0");
        EXPECT_EQ(items->Item(2), missing);
        EXPECT_EQ(items->Item(u""), missing);
        EXPECT_EQ(FaultOf([&] { items->Item(position); }), 457) << position;
        EXPECT_EQ(items->Count(), 2);
    }
    const auto keyless = Build(u"8");
    EXPECT_EQ(FaultOf([&] { keyless->Item(2); }), 457);

    const auto full = Build(u"***");
    const auto third = full->Item(3);
    EXPECT_EQ(full->Item(u"3"), third);
    EXPECT_EQ(Shown(*full), u"3=F");
    EXPECT_EQ(FaultOf([&] { full->Item(3); }), 457);
    EXPECT_EQ(Log(), "(missing)");
}

TEST_F(SecurityItemsCollectionTest, ALoopSurvivesARebuildAndSeesLaterItems) {
    std::u16string seen;
    Build(u"A8æB4");
    for (const auto& item : *utils_->GetSecurityItemsCollection()) {
        if (seen.empty()) {
            for (int i = 0; i < 100; ++i) utils_->GetSecurityItemsCollection()->Item(u"C");
            Build(u"X8");
        }
        seen += item->ItemKey();
    }
    EXPECT_EQ(seen, u"ABC");
}

TEST_F(SecurityItemsCollectionTest, TakesLongKeysAndManyItems) {
    std::u16string longKey(1 << 20, u'k');
    const auto items = Build(longKey + u"8æ" + longKey + u"K" + u"4");
    longKey[0] = u'K';
    EXPECT_EQ(RightsOf(*items->Item(longKey)), 8u);
    EXPECT_EQ(items->Count(), 2);

    std::u16string data;
    for (int i = 0; i < 100'000; ++i) data += FromUtf8(std::to_string(i)) + u"1æ";
    EXPECT_EQ(Build(data)->Count(), 100'000);
    EXPECT_EQ(Build(std::u16string(1'000'000, u'æ'))->Count(), 0);
}

TEST_F(SecurityItemsCollectionTest, RandomDataGrantsWhatTheFirstItemOfEachKeySays) {
    std::mt19937 random(7);
    for (int round = 0; round < 500; ++round) {
        std::u16string data;
        for (auto left = random() % 40; left > 0; --left)
            data += u"ææææ*8Fx\0\xFF18"[random() % 10];
        if (data == u"***") continue;
        std::u16string expected;
        std::set<std::u16string> keys;
        for (const TextIn piece : Pieces(data, u'æ')) {
            if (piece.empty()) continue;
            const std::u16string key(piece.substr(0, piece.size() - 1));
            std::u16string folded = key;
            std::replace(folded.begin(), folded.end(), u'F', u'f');
            if (!keys.insert(folded).second) continue;
            expected += expected.empty() ? u"" : u" ";
            expected += key + u'=' + u"0123456789ABCDEF"[ValueOf(piece.back())];
        }
        EXPECT_EQ(Shown(*Build(data)), expected) << ToUtf8(data);
    }
}

}  // namespace
}  // namespace halvek
