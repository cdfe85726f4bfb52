// SPDX-License-Identifier: MIT
#include <halvekutils/base/CaseFolding.h>
#include <halvekutils/base/Characters.h>
#include <halvekutils/base/NumericText.h>
#include <halvekutils/base/Pieces.h>
#include <halvekutils/platform/Guard.h>
#include <halvekutils/prefs/UserPrefs.h>

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>
#include <tuple>
#include <utility>

namespace halvek {

namespace {

constexpr char16_t kFieldSeparator = 223;
constexpr char16_t kPieceMark = u'|';
constexpr std::size_t kUsualLength = 2000;  // of a settings text; a longer one grows

using TextMember = std::u16string UserPrefs::*;
using NumberMember = std::int32_t UserPrefs::*;
using SwitchMember = bool UserPrefs::*;

// The kinds of fields: how each is reset, read and written.

struct Text {
    TextMember member;
    std::u16string_view reset = {};
    bool mayBeBarred = false;  ///< may arrive between two bars, and is written without them
};

void Reset(UserPrefs& prefs, const Text& row) {
    if (row.reset.empty()) {
        (prefs.*row.member).clear();  // faster than assigning an empty text
    } else {
        prefs.*row.member = row.reset;
    }
}
void Read(UserPrefs& prefs, const Text& row, TextIn field) {
    if (row.mayBeBarred && TakeFront(field, kPieceMark))
        field = field.substr(0, field.find(kPieceMark));
    prefs.*row.member = field;
}
void Write(const UserPrefs& prefs, const Text& row, std::u16string& out) {
    out += prefs.*row.member;
}

/// A number, or a colour whose reset value of -1 also stands for an empty field.
struct Number {
    NumberMember member;
    std::int32_t reset;
};

void Reset(UserPrefs& prefs, const Number& row) {
    prefs.*row.member = row.reset;
}
void Read(UserPrefs& prefs, const Number& row, TextIn field) {
    if (field.empty()) return;
    prefs.*row.member = Quietly(row.reset, [&] { return ToInt32(field); });
}
void Write(const UserPrefs& prefs, const Number& row, std::u16string& out) {
    AppendInteger(out, prefs.*row.member);
}

struct Switch {
    SwitchMember member;
    std::optional<bool> reset = false;
};

void Reset(UserPrefs& prefs, const Switch& row) {
    prefs.*row.member = row.reset.value_or(prefs.*row.member);
}
void Read(UserPrefs& prefs, const Switch& row, TextIn field) {
    prefs.*row.member = EqualFolded(field, u"true");
}
void Write(const UserPrefs& prefs, const Switch& row, std::u16string& out) {
    out += BooleanText(prefs.*row.member);
}

/// A switch that the settings hold as a level; 2 and above is on.
struct Level {
    SwitchMember member;
};

void Reset(UserPrefs& prefs, const Level& row) {
    prefs.*row.member = false;
}
void Read(UserPrefs& prefs, const Level& row, TextIn field) {
    prefs.*row.member = Val(field) >= 2;
}
void Write(const UserPrefs& prefs, const Level& row, std::u16string& out) {
    out += prefs.*row.member ? u'2' : u'0';
}

}  // namespace

/// The fields of the settings text, in its order.
struct UserPrefs::Table {
    static constexpr std::tuple kRows{
        Text{&UserPrefs::aiFormData_, {}, true},
        Text{&UserPrefs::demoFormData_},
        Text{&UserPrefs::scheduleFormData_},
        Text{&UserPrefs::postingFormData_},
        Text{&UserPrefs::reportsFormData_},
        Number{&UserPrefs::requiredFieldBackColor_, kNotSet},
        Number{&UserPrefs::fieldTextColor_, kNotSet},
        Number{&UserPrefs::formTopColor_, kNotSet},
        Number{&UserPrefs::formSkinColor_, kNotSet},
        Number{&UserPrefs::formTextColor_, kNotSet},
        Switch{&UserPrefs::formWindowsMenu_, true},
        Number{&UserPrefs::aiNumDaysToShow_, 0},
        Text{&UserPrefs::reservedSetting12_},
        Text{&UserPrefs::aiFilterData_},
        Switch{&UserPrefs::aiKeepFilter_},
        Level{&UserPrefs::useTables_},
        Switch{&UserPrefs::useFileForTables_},
        Text{&UserPrefs::reservedSetting17_},
        Text{&UserPrefs::reservedSetting18_},
        Text{&UserPrefs::persistentConnection_, u"Y"},
        Switch{&UserPrefs::loadCodesOnLogin_},
        Text{&UserPrefs::insuranceFormData_},
        Switch{&UserPrefs::showAdvancedSettings_, std::nullopt},  // keeps its value
        Switch{&UserPrefs::useViewAllForReportsList_},
        Text{&UserPrefs::viewerFormData_},
        Text{&UserPrefs::worklistFormData_},
        Text{&UserPrefs::importImagesData_},
        Text{&UserPrefs::emrPrefsData_},
        Text{&UserPrefs::imageData_},
        Text{&UserPrefs::scanningDocType_},
        Text{&UserPrefs::solvaneImagesFolder_},
    };

    template <class Visit>
    static void ForEachRow(const Visit& visit) {
        std::apply([&](const auto&... rows) { (visit(rows), ...); }, kRows);
    }
};

UserPrefs::UserPrefs() = default;
UserPrefs::~UserPrefs() = default;

bool UserPrefs::PopulateSettings(TextIn StrAllSettings) {
    UserPrefs next;  // replaces the old values as a whole, or not at all when memory runs out
    next.showAdvancedSettings_ = showAdvancedSettings_;
    Table::ForEachRow([&](const auto& row) { Reset(next, row); });
    std::array<TextIn, std::tuple_size_v<decltype(Table::kRows)>> fields;
    const std::size_t count = CutInto(fields, StrAllSettings, kFieldSeparator);
    std::size_t at = 0;
    Table::ForEachRow([&](const auto& row) {
        if (at < count) Read(next, row, fields[at++]);
    });
    Table::ForEachRow([&](const auto& row) { std::swap(this->*row.member, next.*row.member); });
    return false;
}

std::u16string UserPrefs::GetSettingsString() const {
    std::u16string settings;
    settings.reserve(kUsualLength);
    Table::ForEachRow([&](const auto& row) {
        Write(*this, row, settings);
        settings += kFieldSeparator;
    });
    settings.pop_back();
    return settings;
}

}  // namespace halvek
