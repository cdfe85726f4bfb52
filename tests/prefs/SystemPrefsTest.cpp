// SPDX-License-Identifier: MIT
#include <halvekutils/prefs/SystemPrefs.h>

#include <gtest/gtest.h>

namespace halvek {
namespace {

TEST(SystemPrefs, NeighbouringPropertiesKeepTheirOwnValues) {
    SystemPrefs prefs;
    prefs.CurrencyNumFract(-2);
    prefs.CurrencyNumDecimal(32767);
    prefs.HighlightForeColor(4);
    prefs.HighlightBackColor(5);
    prefs.LookupKey(1);
    prefs.LookupKey1(2);
    prefs.PatientLookupKey(3);
    EXPECT_EQ(prefs.CurrencyNumFract(), -2);
    EXPECT_EQ(prefs.CurrencyNumDecimal(), 32767);
    EXPECT_EQ(prefs.HighlightForeColor() * 10 + prefs.HighlightBackColor(), 45);
    EXPECT_EQ(prefs.LookupKey() * 100 + prefs.LookupKey1() * 10 + prefs.PatientLookupKey(), 123);
}

}  // namespace
}  // namespace halvek
