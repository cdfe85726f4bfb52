#include <halvekutils/prefs/SystemPrefs.h>

#include <gtest/gtest.h>

#include <cstdint>

namespace halvek {
namespace {

TEST(SystemPrefs, EachPropertyKeepsItsOwnValue) {
    const struct {
        std::int32_t (SystemPrefs::*get)() const;
        void (SystemPrefs::*set)(std::int32_t);
    } numbers[] = {
        {&SystemPrefs::DefaultWindowsBackColor, &SystemPrefs::DefaultWindowsBackColor},
        {&SystemPrefs::HighlightForeColor, &SystemPrefs::HighlightForeColor},
        {&SystemPrefs::HighlightBackColor, &SystemPrefs::HighlightBackColor},
        {&SystemPrefs::LookupKey, &SystemPrefs::LookupKey},
        {&SystemPrefs::LookupKey1, &SystemPrefs::LookupKey1},
        {&SystemPrefs::PatientLookupKey, &SystemPrefs::PatientLookupKey},
        {&SystemPrefs::ScrollBarHeight, &SystemPrefs::ScrollBarHeight},
        {&SystemPrefs::ScrollBarWidth, &SystemPrefs::ScrollBarWidth},
        {&SystemPrefs::DisabledTextForeColor, &SystemPrefs::DisabledTextForeColor},
        {&SystemPrefs::DisabledTextBackColor, &SystemPrefs::DisabledTextBackColor},
        {&SystemPrefs::GridHighlightBackColor, &SystemPrefs::GridHighlightBackColor},
    };
    SystemPrefs prefs;
    std::int32_t value = -1;
    for (const auto& number : numbers) (prefs.*number.set)(value--);
    prefs.CurrencyNumFract(-2);
    prefs.CurrencyNumDecimal(32767);
    value = -1;
    for (const auto& number : numbers) EXPECT_EQ((prefs.*number.get)(), value--);
    EXPECT_EQ(prefs.CurrencyNumFract(), -2);
    EXPECT_EQ(prefs.CurrencyNumDecimal(), 32767);
}

}  // namespace
}  // namespace halvek
