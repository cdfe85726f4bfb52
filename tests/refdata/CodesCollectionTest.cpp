// SPDX-License-Identifier: MIT
#include "tests/CleanState.h"

#include <halvekutils/base/RuntimeError.h>
#include <halvekutils/base/Utf8.h>
#include <halvekutils/refdata/CodesCollection.h>

#include <cstdint>
#include <iterator>
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

const Fields kNoFields = {u"", u"", false, false, u"", u"", false, false};

class CodesCollectionTest : public CleanState {
  protected:
    std::shared_ptr<CodesCollection> Build(TextIn data) {
        utils_->BuildCodesCollection(data);
        return utils_->GetCodesCollection();
    }
};

TEST_F(CodesCollectionTest, HoldsTheServersTablesInTheirOrder) {
    const struct {
        std::u16string record;
        Fields fields;
    } rows[] = {
        {u"æKæ1æ1æRæSæTæ0æ1", {u"", u"K", true, true, u"R", u"SæT", false, true}},
        {u"one field", kNoFields},
        {u"DæFiveFieldsæ1æ1æR", kNoFields},
        {u"DæAæ1æ1æRæS", {u"D", u"A", true, true, u"R", u"S", false, false}},
        {u" D æ k æ1æ0æRæ", {u" D ", u" k ", true, false, u"R", u"", false, false}},
        {u"DæBæ0æ1æRæSæ", {u"D", u"B", false, true, u"R", u"Sæ", false, false}},
        {u"DæCæ1æ1æRæSæTæ1", {u"D", u"C", true, true, u"R", u"SæT", true, false}},
        {u"DæEæ1æ1æRæSæTæ1æ1æ0æx", {u"D", u"E", true, true, u"R", u"SæT", true, true}},
        {u" ", kNoFields},
    };
    std::u16string data = u"||";
    for (const auto& row : rows) data += row.record + u"||";
    const auto codes = Build(data);
    std::int32_t position = 0;
    for (const auto& code : codes) {
        EXPECT_EQ(FieldsOf(*code), rows[position].fields) << ToUtf8(rows[position].record);
        EXPECT_EQ(codes->Item(++position), code);
        EXPECT_TRUE(code->CodeKey().empty() || codes->Item(code->CodeKey()) == code);
    }
    EXPECT_EQ(position, std::ssize(rows));
    EXPECT_EQ(Build(u"")->Count(), 0);
}

TEST_F(CodesCollectionTest, ReadsTheMenuFlagExactlyAndTheOthersByValue) {
    const struct {
        std::u16string text;
        bool value, menu;
    } rows[] = {{u"1", true, true},     {u" 1", true, false},  {u"01", true, false},
                {u"1.0", true, false},  {u"1x", true, false},  {u"", false, false},
                {u"2", false, false},   {u"11", false, false}, {u"-1", false, false},
                {u"1.5", false, false}, {u"x1", false, false}, {u"True", false, false}};
    for (const auto& row : rows) {
        const std::u16string& flag = row.text;
        const auto code = Build(u"DæKæ" + flag + u"æ" + flag + u"æRæSæTæ" + flag + u"æ" + flag);
        EXPECT_EQ(FieldsOf(*code->Item(1)),
                  Fields(u"D", u"K", row.value, row.menu, u"R", u"SæT", row.value, row.value))
            << ToUtf8(flag);
    }
}

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
    const std::string text = Log();
    const std::string entry = "\tError adding to CodesCollection in HalvekUtils.Add:\r\n" +
                              ToUtf8(RuntimeError(Fault::DuplicateKey, u"ABC").Description()) +
                              "\r\n\r\nPossible duplicate CodeKey/CodeDescription:  ABC/Second\r\n";
    const std::size_t first = text.find(entry);
    EXPECT_TRUE(text.ends_with(entry)) << text;
    EXPECT_NE(text.rfind(entry), first);
}

TEST_F(CodesCollectionTest, ARebuildLeavesTheHostsCollectionAndItsLoopsAlone) {
    EXPECT_EQ(utils_->GetCodesCollection(), nullptr);
    for (const auto& code : utils_->GetCodesCollection()) FAIL() << "null holds " << code;
    std::weak_ptr<CodesCollection> old = Build(u"OneæAæ1æ1ææ|TwoæBæ1æ1ææ|ThreeæCæ1æ1ææ");
    EXPECT_EQ(Utils::Create()->GetCodesCollection(), old.lock());
    std::u16string seen;
    for (const auto& code : utils_->GetCodesCollection()) {
        EXPECT_EQ(Build(u"NewæAæ1æ1ææ")->Item(u"a")->CodeDescription(), u"New");
        seen += old.lock()->Item(code->CodeKey())->CodeDescription();
    }
    EXPECT_EQ(seen, u"OneTwoThree");
    EXPECT_TRUE(old.expired());
    utils_->ClearCodesCollection();
    EXPECT_EQ(utils_->GetCodesCollection(), nullptr);
}

}  // namespace
}  // namespace halvek
