// SPDX-License-Identifier: MIT
#include "fuzz/FuzzText.h"
#include "tests/prefs/TextProperties.h"

#include <halvekutils/prefs/UserPrefs.h>

#include <algorithm>

using namespace halvek;

namespace {

constexpr char16_t kSeparator = 223;
constexpr std::size_t kFields = 31;

constexpr std::size_t kColorFields[] = {5, 6, 7, 8, 9};
constexpr std::size_t kSwitchFields[] = {14, 16, 20, 22, 23};  // all off unless "true"

bool IsColor(std::u16string_view text) {
    const std::size_t digits = text.size() - (text.starts_with(u'-') ? 1 : 0);
    return digits > 0 && digits <= 10 &&
           text.find_first_not_of(u"0123456789", text.size() - digits) == text.npos;
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
    for (const std::size_t field : kColorFields) {
        Require(IsColor(kept[field]), "a colour is a whole number");
        if (field < sent.size() && sent[field].size() < 9 && IsColor(sent[field])) {
            const bool same = std::stoi(std::string(sent[field].begin(), sent[field].end())) ==
                              std::stoi(std::string(kept[field].begin(), kept[field].end()));
            Require(same, "a colour stays");
        }
    }
    for (const std::size_t field : kSwitchFields) {
        const bool on = field < sent.size() && Folded(sent[field]) == u"true";
        Require(kept[field] == (on ? u"True" : u"False"), "a switch stays");
    }
    UserPrefs copy;
    copy.PopulateSettings(settings);
    Require(copy.GetSettingsString() == settings, "settings that were read stay as they are");
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
    const std::u16string settings = prefs.GetSettingsString();
    UserPrefs copy;
    copy.PopulateSettings(settings);
    for (std::size_t i = 0; i < values.size(); ++i) {
        Require(Cut(settings, kSeparator)[kTextProperties[i].field] == values[i],
                "a property has a field");
        Require((copy.*kTextProperties[i].get)() == values[i], "a property comes back");
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzedDataProvider input(data, size);
    CheckProperties(input);
    std::u16string text;  // as many fields as the server sends, and more
    for (std::size_t i = 0; i <= kFields; ++i) text += FuzzText(input, 8) + kSeparator;
    CheckText(text);
    CheckText(RestAsText(input, u"ßß|Ttrue12-"));
    return 0;
}
