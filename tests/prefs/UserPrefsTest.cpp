#include "tests/CleanState.h"

#include <halvekutils/base/NumericText.h>
#include <halvekutils/base/Pieces.h>
#include <halvekutils/base/Utf8.h>
#include <halvekutils/core/Utils.h>
#include <halvekutils/prefs/UserPrefs.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace halvek {
namespace {

using namespace std::string_view_literals;

constexpr std::size_t kFields = 31;

template <class T>
concept TakesAsSwitch = requires(UserPrefs& prefs, T value) {
    prefs.UseTables(value);
};
static_assert(TakesAsSwitch<bool>);
static_assert(!TakesAsSwitch<int> && !TakesAsSwitch<const char16_t*> && !TakesAsSwitch<TextIn>);

const struct {
    std::size_t field;
    std::u16string (UserPrefs::*get)() const;
    void (UserPrefs::*set)(TextIn);
} kTexts[] = {
    {0, &UserPrefs::AIFormData, &UserPrefs::AIFormData},
    {1, &UserPrefs::DemoFormData, &UserPrefs::DemoFormData},
    {2, &UserPrefs::ScheduleFormData, &UserPrefs::ScheduleFormData},
    {3, &UserPrefs::PostingFormData, &UserPrefs::PostingFormData},
    {4, &UserPrefs::ReportsFormData, &UserPrefs::ReportsFormData},
    {13, &UserPrefs::AIFilterData, &UserPrefs::AIFilterData},
    {19, &UserPrefs::PersistentConnection, &UserPrefs::PersistentConnection},
    {21, &UserPrefs::InsuranceFormData, &UserPrefs::InsuranceFormData},
    {24, &UserPrefs::ViewerFormData, &UserPrefs::ViewerFormData},
    {25, &UserPrefs::WorklistFormData, &UserPrefs::WorklistFormData},
    {26, &UserPrefs::ImportImagesData, &UserPrefs::ImportImagesData},
    {27, &UserPrefs::EMRPrefsData, &UserPrefs::EMRPrefsData},
    {28, &UserPrefs::ImageData, &UserPrefs::ImageData},
    {29, &UserPrefs::ScanningDocType, &UserPrefs::ScanningDocType},
    {30, &UserPrefs::SolvaneImagesFolder, &UserPrefs::SolvaneImagesFolder},
};

const struct {
    std::size_t field;
    Color (UserPrefs::*get)();
    void (UserPrefs::*set)(Color);
    Color whenNotSet;
} kColors[] = {
    {5, &UserPrefs::RequiredFieldBackColor, &UserPrefs::RequiredFieldBackColor, 16765560},
    {6, &UserPrefs::FieldTextColor, &UserPrefs::FieldTextColor, 0},
    {7, &UserPrefs::FormTopColor, &UserPrefs::FormTopColor, 9664091},
    {8, &UserPrefs::FormSkinColor, &UserPrefs::FormSkinColor, 9664091},
    {9, &UserPrefs::FormTextColor, &UserPrefs::FormTextColor, 16777215},
};

const struct {
    std::size_t field;
    bool (UserPrefs::*get)() const;
    void (UserPrefs::*set)(BoolIn);
} kSwitches[] = {
    {10, &UserPrefs::FormWindowsMenu, &UserPrefs::FormWindowsMenu},
    {14, &UserPrefs::AIKeepFilter, &UserPrefs::AIKeepFilter},
    {15, &UserPrefs::UseTables, &UserPrefs::UseTables},
    {16, &UserPrefs::UseFileForTables, &UserPrefs::UseFileForTables},
    {20, &UserPrefs::LoadCodesOnLogin, &UserPrefs::LoadCodesOnLogin},
    {22, &UserPrefs::ShowAdvancedSettings, &UserPrefs::ShowAdvancedSettings},
    {23, &UserPrefs::UseViewAllForReportsList, &UserPrefs::UseViewAllForReportsList},
};

UserPrefs Populated(TextIn settings) {
    UserPrefs prefs;
    EXPECT_FALSE(prefs.PopulateSettings(settings));
    return prefs;
}

/// The settings of one field, with something behind it.
std::u16string Only(std::size_t field, TextIn value) {
    return std::u16string(field, u'ß') + value.Str() + u'ß';
}

std::u16string FieldOf(const UserPrefs& prefs, std::size_t field) {
    const std::u16string settings = prefs.GetSettingsString();
    std::vector<TextIn> fields;
    for (const TextIn piece : Pieces(settings, u'ß')) fields.push_back(piece);
    EXPECT_EQ(fields.size(), kFields);
    return fields.at(field).Str();
}

TEST(UserPrefs, WritesTheSettingsText) {
    UserPrefs prefs = Populated(u"");
    EXPECT_EQ(prefs.GetSettingsString(),
              u"ßßßßß-1ß-1ß-1ß-1ß-1ßTrueß0ßßßFalseß0ßFalseßßßYßFalseßßFalseßFalseßßßßßßß");
    prefs.DemoFormData(u"A1");
    prefs.FormSkinColor(255);
    prefs.UseTables(true);
    prefs.PersistentConnection(u"N");
    EXPECT_EQ(prefs.GetSettingsString(),
              u"ßA1ßßßß-1ß-1ß-1ß255ß-1ßTrueß0ßßßFalseß2ßFalseßßßNßFalseßßFalseßFalseßßßßßßß");
    EXPECT_EQ(UserPrefs().GetSettingsString(),
              u"ßßßßß0ß0ß0ß0ß0ßFalseß0ßßßFalseß0ßFalseßßßßFalseßßFalseßFalseßßßßßßß");
}

TEST(UserPrefs, EachPropertyHasItsFieldForReadingAndWriting) {
    for (const auto& row : kTexts) {
        UserPrefs prefs = Populated(Only(row.field, u"read "));
        EXPECT_EQ((prefs.*row.get)(), u"read ") << row.field;
        (prefs.*row.set)(u"written");
        EXPECT_EQ(FieldOf(prefs, row.field), u"written");
    }
    for (const auto& row : kColors) {
        UserPrefs prefs = Populated(Only(row.field, u"65535"));
        EXPECT_EQ((prefs.*row.get)(), 65535) << row.field;
        (prefs.*row.set)(-2);
        EXPECT_EQ((prefs.*row.get)(), -2);
        EXPECT_EQ(FieldOf(prefs, row.field), u"-2");
    }
    for (const auto& row : kSwitches) {
        for (const bool value : {true, false}) {
            const std::u16string tables = value ? u"2" : u"0";
            const std::u16string text = row.field == 15 ? tables : BooleanText(value);
            UserPrefs prefs = Populated(Only(row.field, text));
            EXPECT_EQ((prefs.*row.get)(), value) << row.field;
            (prefs.*row.set)(!value);
            EXPECT_NE(FieldOf(prefs, row.field), text);
            (prefs.*row.set)(value);
            EXPECT_EQ(FieldOf(prefs, row.field), text);
        }
    }
    UserPrefs prefs = Populated(Only(11, u"30"));
    EXPECT_EQ(prefs.AINumDaysToShow(), 30);
    prefs.AINumDaysToShow(-7);
    EXPECT_EQ(FieldOf(prefs, 11), u"-7");
}

TEST(UserPrefs, ARoundTripKeepsAllFieldsTheReservedOnesIncluded) {
    std::u16string whole =
        u"aßbßcßdßeß1ß-1ß3ß4ß5ßFalseß6ßR12ßfßTrueß2ßTrueßR17ßR18ßgßTrueßhßTrueßTrueßiß?ßkßlßmßnßo";
    whole[whole.find(u'?')] = u'\0';
    EXPECT_EQ(Populated(whole).GetSettingsString(), whole);
    EXPECT_EQ(Populated(whole + u"ßfield 31ß").GetSettingsString(), whole);
    EXPECT_EQ(Populated(u"ß" + whole).GetSettingsString(),
              u"ßaßbßcßdß0ß1ß-1ß3ß4ßFalseß0ß6ßR12ßFalseß0ßFalseßTrueßR17ßR18ßFalseßTrueßFalseßTrueß"
              u"Trueßiß\0ßkßlßmßn"sv)
        << "a leading separator shifts every field by one";
}

TEST(UserPrefs, AnUnsetColourTurnsIntoItsDefaultWhenItIsRead) {
    UserPrefs prefs = Populated(u"");
    for (const auto& row : kColors) {
        EXPECT_EQ(FieldOf(prefs, row.field), u"-1");
        EXPECT_EQ((prefs.*row.get)(), row.whenNotSet) << row.field;
        EXPECT_EQ(FieldOf(prefs, row.field), IntegerText(row.whenNotSet));
        (prefs.*row.set)(-1);
        EXPECT_EQ((prefs.*row.get)(), row.whenNotSet);
        EXPECT_EQ((UserPrefs().*row.get)(), 0) << "before the first settings";
    }
}

TEST(UserPrefs, ReadsNumbersByTheirBeginningAndGoesOnBehindABadOne) {
    const struct {
        std::u16string text;
        std::int32_t days, color;
    } rows[] = {
        {u"", 0, -1},
        {u" ", 0, 0},
        {u"x", 0, 0},
        {u"  7", 7, 7},
        {u"-1x", -1, -1},
        {u"1,234", 1, 1},
        {u"+5 6", 5, 5},
        {u"2.5", 2, 2},
        {u"3.5", 4, 4},
        {u"-0.4", 0, 0},
        {u"1e9", 1'000'000'000, 1'000'000'000},
        {u"2147483647", 2147483647, 2147483647},
        {u"2147483648", 0, -1},
        {u"-2147483648", -2147483647 - 1, -2147483647 - 1},
        {u"-2147483649", 0, -1},
        {u"1e10", 0, -1},
        {u"-1e400", 0, -1},
        {std::u16string(1 << 20, u'9'), 0, -1},
        {std::u16string(u"1\0002", 3), 1, 1},
        {u"\xFF11", 0, 0},
    };
    for (const auto& row : rows) {
        const std::string text = ToUtf8(row.text.substr(0, 20));
        const UserPrefs prefs = Populated(u"ßßßßß" + row.text + u"ß9ßßßßTrueß" + row.text +
                                          u"ßR12ßfilterßTrueß" + row.text + u"ßTrue");
        EXPECT_EQ(FieldOf(prefs, 5), IntegerText(row.color)) << text;
        EXPECT_EQ(FieldOf(prefs, 11), IntegerText(row.days)) << text;
        EXPECT_EQ(FieldOf(prefs, 6), u"9") << text;
        EXPECT_EQ(prefs.AIFilterData(), u"filter") << text;
        EXPECT_TRUE(prefs.UseFileForTables()) << text;
    }
}

TEST(UserPrefs, ReadsSwitchesByWordAndTheLevelOfTablesByValue) {
    const struct {
        std::u16string text;
        bool word, level;
    } rows[] = {
        {u"True", true, false},   {u"TRUE", true, false}, {u"tRuE", true, false},
        {u"", false, false},      {u"1", false, false},   {u" true", false, false},
        {u"True ", false, false}, {u"yes", false, false}, {u"False", false, false},
        {u"2", false, true},      {u"3", false, true},    {u" 2x", false, true},
        {u"1.99", false, false},  {u"-3", false, false},  {u"1e999", false, true},
        {u"Truee", false, false}, {u"x2", false, false},
    };
    for (const auto& row : rows) {
        for (const auto& property : kSwitches) {
            UserPrefs prefs;
            (prefs.*property.set)(true);
            prefs.PopulateSettings(Only(property.field, row.text));
            EXPECT_EQ((prefs.*property.get)(), property.field == 15 ? row.level : row.word)
                << ToUtf8(row.text) << " in " << property.field;
        }
    }
}

TEST(UserPrefs, TakesTheFirstFieldFromBetweenItsBars) {
    const std::u16string rows[][2] = {
        {u"|abc|def", u"abc"}, {u"x|abc", u"x|abc"}, {u"|abc", u"abc"},
        {u"|", u""},           {u"||x", u""},        {u" |a|b", u" |a|b"},
    };
    for (const auto& [field, value] : rows) {
        EXPECT_EQ(Populated(field).AIFormData(), value) << ToUtf8(field);
        EXPECT_EQ(Populated(field + u"ßdemo").DemoFormData(), u"demo");
        EXPECT_EQ(Populated(u"ß" + field).DemoFormData(), field) << "of the first field only";
    }
}

TEST(UserPrefs, PopulatingResetsWhatTheTextDoesNotReach) {
    UserPrefs prefs;
    for (const auto& row : kTexts) (prefs.*row.set)(u"old");
    for (const auto& row : kColors) (prefs.*row.set)(7);
    for (const auto& row : kSwitches) (prefs.*row.set)(row.field != 10);
    prefs.AINumDaysToShow(7);
    prefs.LastPrinterUsed(u"Lab");
    prefs.PopulateSettings(u"new");
    EXPECT_EQ(prefs.GetSettingsString(),
              u"newßßßßß-1ß-1ß-1ß-1ß-1ßTrueß0ßßßFalseß0ßFalseßßßYßFalseßßTrueßFalseßßßßßßß")
        << "all but the advanced settings";
    EXPECT_EQ(prefs.LastPrinterUsed(), u"Lab");
    prefs.PopulateSettings(std::u16string(22, u'ß'));
    EXPECT_FALSE(prefs.ShowAdvancedSettings());
}

TEST(UserPrefs, AnyTextGivesSettingsThatReadBackAsTheyAre) {
    std::mt19937 random(11);
    std::vector<std::u16string> texts = {std::u16string(1'000'000, u'ß'),
                                         std::u16string(1'000'000, u'x')};
    for (int round = 0; round < 2000; ++round) {
        std::u16string text;
        for (auto left = random() % 200; left > 0; --left) {
            text += u"ßßßßßß|1-e2.Tx\0\xD800\x20AC\t "[random() % 20];
        }
        texts.push_back(text);
    }
    for (const std::u16string& text : texts) {
        const std::u16string settings = Populated(text).GetSettingsString();
        EXPECT_EQ(std::ranges::count(settings, u'ß'), kFields - 1);
        EXPECT_EQ(Populated(settings).GetSettingsString(), settings) << ToUtf8(text);
    }
}

using CurrentPrefs = CleanState;

TEST_F(CurrentPrefs, UserPrefsCrossByCopyInBothDirections) {
    const auto utils = Utils::Create();
    EXPECT_EQ(utils->GetCurrentUserPrefs()->GetSettingsString(), UserPrefs().GetSettingsString());
    EXPECT_NE(utils->GetCurrentUserPrefs(), utils->GetCurrentUserPrefs());

    UserPrefs own = Populated(u"formßdemoßßßßßßßßßFalseß5ßR12");
    own.LastPrinterUsed(u"Lab");
    own.UseTables(true);
    utils->SetCurrentUserPrefs(own);
    const std::u16string settings = own.GetSettingsString();
    own.DemoFormData(u"changed");
    const auto copy = utils->GetCurrentUserPrefs();
    EXPECT_EQ(copy->GetSettingsString(), settings);
    EXPECT_EQ(copy->LastPrinterUsed(), u"");
    copy->FormSkinColor();
    copy->DemoFormData(u"changed");
    EXPECT_EQ(utils->GetCurrentUserPrefs()->GetSettingsString(), settings);
    EXPECT_EQ(Utils::Create()->GetCurrentUserPrefs()->DemoFormData(), u"");
}

TEST_F(CurrentPrefs, SystemPrefsAreShared) {
    const auto utils = Utils::Create();
    const auto made = utils->GetCurrentSystemPrefs();
    ASSERT_NE(made, nullptr);
    EXPECT_EQ(utils->GetCurrentSystemPrefs(), made);
    const auto own = std::make_shared<SystemPrefs>();
    utils->SetCurrentSystemPrefs(own);
    EXPECT_EQ(utils->GetCurrentSystemPrefs(), own);
    utils->SetCurrentSystemPrefs(nullptr);
    EXPECT_NE(utils->GetCurrentSystemPrefs(), nullptr);
    EXPECT_NE(Utils::Create()->GetCurrentSystemPrefs(), utils->GetCurrentSystemPrefs());
}

}  // namespace
}  // namespace halvek
