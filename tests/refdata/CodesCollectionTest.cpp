#include "tests/CleanState.h"
#include "tests/FaultOf.h"

#include <halvekutils/base/RuntimeError.h>
#include <halvekutils/base/Utf8.h>
#include <halvekutils/core/Utils.h>
#include <halvekutils/refdata/CodesCollection.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <memory>
#include <random>
#include <string>
#include <tuple>

namespace halvek {
namespace {

using Fields = std::tuple<std::u16string, std::u16string, bool, bool, std::u16string,
                          std::u16string, bool, bool>;

Fields FieldsOf(const CodeDefinition& code) {
    return {code.CodeDescription(),  code.CodeKey(),     code.CodeHasLookup(),
            code.IncludedInMenu(),   code.ReportName(),  code.SortByList(),
            code.IsEntitySpecific(), code.IsSystemCode()};
}

class CodesCollectionTest : public CleanState {
  protected:
    std::shared_ptr<CodesCollection> Build(TextIn data) {
        utils_->BuildCodesCollection(data);
        return utils_->GetCodesCollection();
    }

    std::shared_ptr<Utils> utils_ = Utils::Create();
};

TEST_F(CodesCollectionTest, HoldsTheServersTablesInTheirOrder) {
    const auto codes = Build(
        u"Insurance CompaniesæINSæ1æ1æInsurance Company ListæNameæCodeæ0æ0|"
        u"Referring DoctorsæREFæ1æ0æReferral ReportæName|ProvidersæPRVæ0æ1ææ");
    const Fields expected[] = {
        {u"Insurance Companies", u"INS", true, true, u"Insurance Company List", u"NameæCode", false,
         false},
        {u"Referring Doctors", u"REF", true, false, u"Referral Report", u"Name", false, false},
        {u"Providers", u"PRV", false, true, u"", u"", false, false},
    };
    ASSERT_EQ(codes->Count(), 3);
    std::int32_t position = 0;
    for (const auto& code : *codes) {
        EXPECT_EQ(FieldsOf(*code), expected[position]);
        EXPECT_EQ(codes->Item(++position), code);
        EXPECT_EQ(codes->Item(code->CodeKey()), code);
    }
    EXPECT_EQ(position, 3);
}

TEST_F(CodesCollectionTest, ReadsTheMenuFlagExactlyAndTheOthersByValue) {
    const struct {
        std::u16string text;
        bool value, menu;
    } rows[] = {{u"1", true, true},    {u" 1", true, false},   {u"01", true, false},
                {u"1.0", true, false}, {u"1x", true, false},   {u"1 ", true, false},
                {u"0", false, false},  {u"", false, false},    {u"2", false, false},
                {u"11", false, false}, {u"-1", false, false},  {u"1.5", false, false},
                {u"x1", false, false}, {u"True", false, false}};
    for (const auto& row : rows) {
        const std::u16string& flag = row.text;
        const auto code = Build(u"DæKæ" + flag + u"æ" + flag + u"æRæSæTæ" + flag + u"æ" + flag);
        EXPECT_EQ(FieldsOf(*code->Item(1)),
                  Fields(u"D", u"K", row.value, row.menu, u"R", u"SæT", row.value, row.value))
            << ToUtf8(flag);
    }
}

TEST_F(CodesCollectionTest, AppliesOptionalFieldsOnlyAsFarAsTheRecordReaches) {
    const Fields empty(u"", u"", false, false, u"", u"", false, false);
    const struct {
        std::u16string record;
        Fields fields;
    } rows[] = {
        {u"one field", empty},
        {u"DæKæ1æ1æR", empty},
        {u"æKæ1æ1", empty},
        {u"DæKæ1æ1æRæS", {u"D", u"K", true, true, u"R", u"S", false, false}},
        {u" D æ k æ1æ1æRæ", {u" D ", u" k ", true, true, u"R", u"", false, false}},
        {u"DæKæ1æ1æRæSæ", {u"D", u"K", true, true, u"R", u"Sæ", false, false}},
        {u"DæKæ1æ1æRæSæTæ1", {u"D", u"K", true, true, u"R", u"SæT", true, false}},
        {u"DæKæ1æ1æRæSæTæ0æ1", {u"D", u"K", true, true, u"R", u"SæT", false, true}},
        {u"DæKæ1æ1æRæSæTæ1æ1æ0æx", {u"D", u"K", true, true, u"R", u"SæT", true, true}},
    };
    for (const auto& row : rows) {
        const auto codes = Build(row.record);
        ASSERT_EQ(codes->Count(), 1);
        EXPECT_EQ(FieldsOf(*codes->Item(1)), row.fields) << ToUtf8(row.record);
    }
}

TEST_F(CodesCollectionTest, SkipsEmptyRecordsOnly) {
    const struct {
        std::u16string data;
        std::int32_t count;
    } rows[] = {{u"", 0},      {u"||", 0},    {u"x|", 1},    {u"|x", 1},
                {u"x||y|", 2}, {u" | |x", 3}, {u"æææææ", 1}, {u"æææææ|æææææ|x|x", 4}};
    for (const auto& row : rows) {
        EXPECT_EQ(Build(row.data)->Count(), row.count) << ToUtf8(row.data);
    }
}

TEST_F(CodesCollectionTest, KeepsTheFirstOfTwoEqualKeysAndLogsTheSecond) {
    for (const bool debugMode : {false, true}) {
        const int beeps = desktop_.Beeps();
        utils_->InitUtils(u"", u"Front Desk", u"", debugMode, u"");
        const auto codes = Build(u"Firstæabcæ1æ1ææ|SecondæABCæ0æ0ææ|LastæZæ0æ0ææ");
        ASSERT_EQ(codes->Count(), 2);
        EXPECT_EQ(codes->Item(u"ABC")->CodeDescription(), u"First");
        EXPECT_EQ(codes->Item(2)->CodeDescription(), u"Last");
        EXPECT_EQ(desktop_.Beeps() - beeps, debugMode ? 1 : 0);
    }
    const std::string text = ReadFile(machine_.ownFolder / "Error.Log");
    const std::string entry = "\tError adding to CodesCollection in HalvekUtils.Add:\r\n" +
                              ToUtf8(RuntimeError(Fault::DuplicateKey, u"ABC").Description()) +
                              "\r\n\r\nPossible duplicate CodeKey/CodeDescription:  ABC/Second\r\n";
    const std::size_t first = text.find(entry);
    ASSERT_NE(first, std::string::npos) << text;
    EXPECT_TRUE(text.ends_with(entry));
    EXPECT_NE(text.rfind(entry), first);
}

TEST_F(CodesCollectionTest, ARebuildLeavesTheHostsCollectionAlone) {
    EXPECT_EQ(utils_->GetCodesCollection(), nullptr);
    auto old = Build(u"OneæAæ1æ1ææ|TwoæBæ1æ1ææ|ThreeæCæ1æ1ææ");
    EXPECT_EQ(Utils::Create()->GetCodesCollection(), old);
    const auto rebuilt = Build(u"NewæAæ1æ1ææ");
    EXPECT_NE(rebuilt, old);
    EXPECT_EQ(rebuilt->Item(u"a")->CodeDescription(), u"New");
    utils_->ClearCodesCollection();
    EXPECT_EQ(utils_->GetCodesCollection(), nullptr);
    EXPECT_EQ(old->Count(), 3);
    EXPECT_EQ(old->Item(u"a")->CodeDescription(), u"One");
    const std::weak_ptr<CodesCollection> held = old;
    old.reset();
    EXPECT_TRUE(held.expired());
}

TEST_F(CodesCollectionTest, ALoopSurvivesARebuildWithinIt) {
    Build(u"OneæAæ1æ1ææ|TwoæBæ1æ1ææ|ThreeæCæ1æ1ææ");
    std::u16string seen;
    for (const auto& code : *utils_->GetCodesCollection()) {
        utils_->BuildCodesCollection(u"NewæXæ1æ1ææ");
        seen += code->CodeKey();
    }
    EXPECT_EQ(seen, u"ABC");
}

TEST_F(CodesCollectionTest, RaisesForAnUnknownKeyOrPosition) {
    const auto codes = Build(u"OneæAæ1æ1ææ|a record without a key");
    constexpr auto kLimits = std::numeric_limits<std::int32_t>{};
    for (const std::int32_t position : {0, -1, 3, kLimits.min(), kLimits.max()}) {
        EXPECT_EQ(FaultOf([&] { codes->Item(position); }), 9) << position;
    }
    for (const TextIn key : {u"B", u"", u"A ", u"a record without a key"}) {
        EXPECT_EQ(FaultOf([&] { codes->Item(key); }), 5) << ToUtf8(key);
    }
}

TEST_F(CodesCollectionTest, TakesAHundredThousandTables) {
    std::u16string data;
    for (int i = 1; i <= 100'000; ++i) {
        const std::u16string number = FromUtf8(std::to_string(i));
        data += u"Table " + number + u"æKey" + number + u"æ1æ0ææ|";
    }
    const auto codes = Build(data);
    ASSERT_EQ(codes->Count(), 100'000);
    for (std::int32_t i = 1; i <= 100'000; ++i) {
        ASSERT_EQ(codes->Item(u"KEY" + FromUtf8(std::to_string(i))), codes->Item(i));
    }
}

TEST_F(CodesCollectionTest, RandomRecordsAreKeptOrLogged) {
    std::mt19937 random(5);
    std::u16string data = u"|";
    std::int32_t records = 0;
    while (data.size() < 20'000) {
        data += u"ææææ|aA1\xFFFF"[random() % 9];
        if (data.back() != u'|' && data[data.size() - 2] == u'|') ++records;
    }
    const auto codes = Build(data);
    const std::u16string log = FromUtf8(ReadFile(machine_.ownFolder / "Error.Log"));
    EXPECT_EQ(codes->Count() + utils_->CountInstances(log, u"Possible duplicate"), records);
    EXPECT_GT(codes->Count(), 1000);
    for (const auto& code : *codes) {
        EXPECT_TRUE(code->CodeKey().empty() || codes->Item(code->CodeKey()) == code);
    }
}

}  // namespace
}  // namespace halvek
