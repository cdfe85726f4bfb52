// SPDX-License-Identifier: MIT
#include "tests/CleanState.h"
#include "tests/prefs/PrefsProperties.h"

#include <halvekutils/base/NumericText.h>
#include <halvekutils/base/Utf8.h>
#include <halvekutils/text/DelimitedText.h>

namespace halvek {
namespace {

using namespace std::string_view_literals;

/// The settings of a user who has set nothing.
constexpr std::u16string_view kUnset =
    u"ßßßßß-1ß-1ß-1ß-1ß-1ßTrueß0ßßßFalseß0ßFalseßßßYßFalseßßFalseßFalseßßßßßßß";
/// Settings that differ from the defaults in every field, the reserved ones included.
constexpr std::u16string_view kWhole =
    u"aßbßcßdßeß1ß2ß3ß4ß5ßFalseß6ßR12ßfßTrueß2ßTrueßR17ßR18ßgßTrueßhßTrueßTrueßiß\0ßkßlßmßnßo"sv;

static_assert(!std::is_convertible_v<int, BoolIn> && !std::is_convertible_v<char*, BoolIn>);

UserPrefs Populated(TextIn settings) {
    UserPrefs prefs;
    EXPECT_FALSE(prefs.PopulateSettings(settings));
    return prefs;
}

std::u16string FieldOf(const UserPrefs& prefs, std::size_t field) {
    return SplitStr(prefs.GetSettingsString(), u"ß", static_cast<std::int16_t>(field + 1));
}

TEST(UserPrefs, AnUnsetColourTurnsIntoItsDefaultWhenItIsRead) {
    UserPrefs prefs = Populated(u"");
    std::u16string read;
    for (const auto& color : kColors) read += u'ß' + IntegerText((prefs.*color.get)());
    EXPECT_EQ(read, u"ß16765560ß0ß9664091ß9664091ß16777215");
    EXPECT_TRUE(prefs.GetSettingsString().starts_with(u"ßßßß" + read + u"ßTrue"));
}

TEST(UserPrefs, ReadsNumbersByTheirBeginningAndGoesOnBehindABadOne) {
    const auto expect = [](const std::u16string& text, std::int32_t days, std::int32_t color) {
        const UserPrefs prefs = Populated(u"ßßßßß" + text + u"ß9ßßßßTrueß" + text + u"ßßfilter");
        EXPECT_EQ(FieldOf(prefs, 5), IntegerText(color)) << ToUtf8(text);
        EXPECT_EQ(prefs.AINumDaysToShow(), days) << ToUtf8(text);
        EXPECT_EQ(FieldOf(prefs, 6) + prefs.AIFilterData(), u"9filter") << ToUtf8(text);
    };
    const std::pair<TextIn, std::int32_t> numbers[] = {{u" ", 0},   {u"-1x", -1}, {u"1,234", 1},
                                                       {u"3.5", 4}, {u"2.5", 2},  {u"-1.5", -2}};
    for (const auto& [text, number] : numbers) expect(text.Str(), number, number);
    expect(u"2147483647.4", 2147483647, 2147483647);
    for (const TextIn text : {u"", u"-1e400", u"2147483647.5", u"-2147483648.51"}) {
        expect(text.Str(), 0, -1);
    }
    expect(std::u16string(1 << 20, u'9'), 0, -1);
}

TEST(UserPrefs, PopulatingResetsAllButTheAdvancedSettings) {
    UserPrefs prefs = Populated(kWhole);
    EXPECT_EQ(prefs.GetSettingsString(), kWhole);
    prefs.LastPrinterUsed(u"Lab");
    prefs.PopulateSettings(u"");
    EXPECT_EQ(prefs.LastPrinterUsed(), u"Lab");
    EXPECT_TRUE(prefs.ShowAdvancedSettings());
    prefs.ShowAdvancedSettings(false);
    EXPECT_EQ(prefs.GetSettingsString(), kUnset);
}

using CurrentPrefs = CleanState;

TEST_F(CurrentPrefs, UserPrefsCrossByCopyInBothDirections) {
    UserPrefs own = Populated(u"formßdemoßßßßßßßßßFalseß5ßR12");
    own.LastPrinterUsed(u"Lab");
    utils_->SetCurrentUserPrefs(own);
    const std::u16string settings = own.GetSettingsString();
    own.DemoFormData(u"changed");
    const auto copy = utils_->GetCurrentUserPrefs();
    EXPECT_EQ(copy->GetSettingsString(), settings);
    EXPECT_EQ(copy->LastPrinterUsed(), u"");
    copy->FormSkinColor();
    EXPECT_EQ(utils_->GetCurrentUserPrefs()->GetSettingsString(), settings);
    utils_->SetCurrentSystemPrefs(nullptr);
    EXPECT_NE(utils_->GetCurrentSystemPrefs(), nullptr);
    EXPECT_EQ(Utils::Create()->GetCurrentUserPrefs()->GetSettingsString(),
              u"ßßßßß0ß0ß0ß0ß0ßFalseß0ßßßFalseß0ßFalseßßßßFalseßßFalseßFalseßßßßßßß");
}

}  // namespace
}  // namespace halvek
