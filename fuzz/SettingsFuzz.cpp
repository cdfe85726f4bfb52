// SPDX-License-Identifier: MIT
#include "fuzz/FuzzTarget.h"
#include "tests/prefs/PrefsProperties.h"

#include <halvekutils/base/NumericText.h>
#include <halvekutils/core/ServerTextCheck.h>

using namespace halvek;

namespace {

constexpr char16_t kSeparator = 223;
constexpr std::size_t kFields = 31;

/// The field of the one switch that is on by default, and of the one that the server holds as a
/// level.
constexpr std::size_t kOnByDefault = 10, kLevel = 15;

bool IsColor(std::u16string_view text) {
    const std::size_t digits = text.size() - (text.starts_with(u'-') ? 1 : 0);
    return digits > 0 && digits <= 10 &&
           text.find_first_not_of(u"0123456789", text.size() - digits) == text.npos;
}

std::u16string Shown(std::size_t field, bool on) {
    if (field == kLevel) return on ? u"2" : u"0";
    return on ? u"True" : u"False";
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

/// What the host sets comes back in a copy.
void CheckProperties(FuzzedDataProvider& input) {
    UserPrefs prefs;
    std::vector<std::u16string> values;
    for (const auto& row : kTextProperties) {
        std::u16string& value = values.emplace_back(FuzzText(input, 6));
        std::replace(value.begin(), value.end(), kSeparator, u's');
        if (row.field == 0 && value.starts_with(u'|')) value[0] = u'!';
        (prefs.*row.set)(value);
    }
    const auto color = input.ConsumeIntegralInRange<Color>(0, 0xFFFFFF);
    const bool on = input.ConsumeBool();
    const auto colored = input.PickValueInArray(kColors);
    const auto switched = input.PickValueInArray(kSwitches);
    (prefs.*colored.set)(color);
    (prefs.*switched.set)(on);
    const auto fields = Cut(prefs.GetSettingsString(), kSeparator);
    Require(fields[colored.field] == IntegerText(color), "a colour has a field");
    Require(fields[switched.field] == Shown(switched.field, on), "a switch has a field");
    UserPrefs copy;
    copy.PopulateSettings(prefs.GetSettingsString());
    Require((copy.*colored.get)() == color && (copy.*switched.get)() == on, "both come back");
    for (std::size_t i = 0; i < values.size(); ++i) {
        Require(fields[kTextProperties[i].field] == values[i], "a property has a field");
        Require((copy.*kTextProperties[i].get)() == values[i], "a property comes back");
    }
}

}  // namespace

void halvek::Check(FuzzedDataProvider& input) {
    CheckProperties(input);
    std::u16string text;  // as many fields as the server sends, and more
    for (std::size_t i = 0; i <= kFields; ++i) text += FuzzText(input, 8) + kSeparator;
    CheckText(text);
    CheckText(RestAsText(input, u"ßß|Ttrue12-"));
}
