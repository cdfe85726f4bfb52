// SPDX-License-Identifier: MIT
#include "fuzz/FuzzTarget.h"
#include "tests/prefs/PrefsProperties.h"

#include <halvekutils/base/NumericText.h>
#include <halvekutils/core/ServerTextCheck.h>

#include <functional>
#include <regex>

using namespace halvek;

namespace {

constexpr char16_t kSeparator = 223;
constexpr std::size_t kFields = 31;

/// The field of the one switch that is on by default, and of the one that the server holds as a
/// level.
constexpr std::size_t kOnByDefault = 10, kLevel = 15;

bool IsColor(const std::u16string& text) {
    static const std::regex color("-?[0-9]{1,10}");
    return std::regex_match(ToCodePage(text), color);
}

std::u16string Shown(std::size_t field, bool on) {
    if (field == kLevel) return on ? u"2" : u"0";
    return on ? u"True" : u"False";
}

/// What the host sets in each property, here another value than it has, comes back.
template <class Rows, class Change>
void CheckProperties(UserPrefs& prefs, const Rows& rows, Change other) {
    UserPrefs copy;
    for (const auto& row : rows) (copy.*row.set)(other((prefs.*row.get)()));
    for (const auto& row : rows) {
        Require((copy.*row.get)() == other((prefs.*row.get)()), "a property comes back");
    }
}

/// What the server sends comes out again, where that is possible.
void CheckText(const std::u16string& text) {
    UserPrefs prefs;
    Require(!prefs.PopulateSettings(text), "the result is always false");
    const std::u16string settings = prefs.GetSettingsString();
    const auto sent = Cut(text, kSeparator);
    const auto kept = Cut(settings, kSeparator);
    Require(kept.size() == kFields, "there are always 31 fields");
    for (const auto& row : kTextProperties) {
        std::u16string wanted = row.field == 19 ? u"Y" : u"";
        if (row.field < sent.size()) wanted = sent[row.field];
        if (row.field == 0 && wanted.starts_with(u'|')) wanted = Cut(wanted, u'|')[1];
        Require(kept[row.field] == wanted && (prefs.*row.get)() == wanted, "a text stays");
    }
    for (const auto& row : kColors) {
        const std::size_t field = row.field;
        Require(IsColor(kept[field]), "a colour is a whole number");
        if (field < sent.size() && sent[field].size() < 9 && IsColor(sent[field])) {
            Require(ToNumber(sent[field]) == ToNumber(kept[field]), "a colour stays");
        }
    }
    for (const auto& row : kSwitches) {
        std::u16string was = row.field == kOnByDefault ? u"True" : u"False";
        if (row.field < sent.size()) was = sent[row.field];
        const bool on = row.field == kLevel ? Val(was) >= 2 : Folded(was) == u"true";
        Require((prefs.*row.get)() == on && kept[row.field] == Shown(row.field, on),
                "a switch stays");
    }
    CheckProperties(prefs, kTextProperties, [](const auto& text) { return text + u'x'; });
    CheckProperties(prefs, kColors, [](Color color) { return (color & 0xFFFFFF) ^ 1; });
    CheckProperties(prefs, kSwitches, std::logical_not<bool>());
    UserPrefs copy;
    copy.PopulateSettings(settings);
    Require(copy.GetSettingsString() == settings, "settings that were read stay as they are");
    Remarks remarks;
    std::u16string heard;
    for (const auto& [name, value] : ServerTextCheck::Settings(text, remarks)) {
        heard += value + kSeparator;
    }
    DoubledIn(remarks, text);
    Require(heard == settings + kSeparator, "a listener changes no setting");
}

}  // namespace

void halvek::Check(FuzzedDataProvider& input) {
    std::u16string text;  // as many fields as the server sends, and more
    for (std::size_t i = 0; i <= kFields; ++i) text += FuzzText(input, 8) + kSeparator;
    CheckText(text);
    CheckText(RestAsText(input, u"ßß|Ttrue12-"));
}
