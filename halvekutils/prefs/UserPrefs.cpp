// SPDX-License-Identifier: MIT
#include <halvekutils/base/CaseFolding.h>
#include <halvekutils/base/Characters.h>
#include <halvekutils/base/NumericText.h>
#include <halvekutils/base/Pieces.h>
#include <halvekutils/base/Remarks.h>
#include <halvekutils/platform/Guard.h>
#include <halvekutils/prefs/UserPrefs.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <span>
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

// The kinds of fields: how each is reset, read and written, and what a reader remarks on it.

struct Text {
    std::u16string_view name;
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
void RemarkOn(const Text& row, const FieldRemarks& on, TextIn field) {
    if (!row.mayBeBarred || !TakeFront(field, kPieceMark)) return;
    const std::size_t end = std::min(field.find(kPieceMark), field.size());
    const TextIn rest = field.substr(std::min(end + 1, field.size()));
    if (!rest.empty()) {
        on.Add(RemarkKind::Ignored, u": " + Quoted(rest) + u" after the second bar is ignored");
    }
}
void Write(const UserPrefs& prefs, const Text& row, std::u16string& out) {
    out += prefs.*row.member;
}

/// A number, or a colour whose reset value of -1 also stands for an empty field.
struct Number {
    std::u16string_view name;
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
void RemarkOn(const Number& row, const FieldRemarks& on, TextIn) {
    on.OnInteger(IntegerText(row.reset));
}
void Write(const UserPrefs& prefs, const Number& row, std::u16string& out) {
    AppendInteger(out, prefs.*row.member);
}

struct Switch {
    std::u16string_view name;
    SwitchMember member;
    std::optional<bool> reset = false;
};

void Reset(UserPrefs& prefs, const Switch& row) {
    prefs.*row.member = row.reset.value_or(prefs.*row.member);
}
void Read(UserPrefs& prefs, const Switch& row, TextIn field) {
    prefs.*row.member = EqualFolded(field, u"true");
}
void RemarkOn(const Switch&, const FieldRemarks& on, TextIn) {
    on.OnSwitch();
}
void Write(const UserPrefs& prefs, const Switch& row, std::u16string& out) {
    out += BooleanText(prefs.*row.member);
}

/// A switch that the settings hold as a level; 2 and above is on.
struct Level {
    std::u16string_view name;
    SwitchMember member;
};

void Reset(UserPrefs& prefs, const Level& row) {
    prefs.*row.member = false;
}
void Read(UserPrefs& prefs, const Level& row, TextIn field) {
    prefs.*row.member = Val(field) >= 2;
}
void RemarkOn(const Level&, const FieldRemarks& on, TextIn) {
    on.OnNumber(u"false", u"false");
}
void Write(const UserPrefs& prefs, const Level& row, std::u16string& out) {
    out += prefs.*row.member ? u'2' : u'0';
}

}  // namespace

/// The fields of the settings text, in its order.
struct UserPrefs::Table {
    static constexpr std::tuple kRows{
        Text{u"AIFormData", &UserPrefs::aiFormData_, {}, true},
        Text{u"DemoFormData", &UserPrefs::demoFormData_},
        Text{u"ScheduleFormData", &UserPrefs::scheduleFormData_},
        Text{u"PostingFormData", &UserPrefs::postingFormData_},
        Text{u"ReportsFormData", &UserPrefs::reportsFormData_},
        Number{u"RequiredFieldBackColor", &UserPrefs::requiredFieldBackColor_, kNotSet},
        Number{u"FieldTextColor", &UserPrefs::fieldTextColor_, kNotSet},
        Number{u"FormTopColor", &UserPrefs::formTopColor_, kNotSet},
        Number{u"FormSkinColor", &UserPrefs::formSkinColor_, kNotSet},
        Number{u"FormTextColor", &UserPrefs::formTextColor_, kNotSet},
        Switch{u"FormWindowsMenu", &UserPrefs::formWindowsMenu_, true},
        Number{u"AINumDaysToShow", &UserPrefs::aiNumDaysToShow_, 0},
        Text{u"ReservedSetting12", &UserPrefs::reservedSetting12_},
        Text{u"AIFilterData", &UserPrefs::aiFilterData_},
        Switch{u"AIKeepFilter", &UserPrefs::aiKeepFilter_},
        Level{u"UseTables", &UserPrefs::useTables_},
        Switch{u"UseFileForTables", &UserPrefs::useFileForTables_},
        Text{u"ReservedSetting17", &UserPrefs::reservedSetting17_},
        Text{u"ReservedSetting18", &UserPrefs::reservedSetting18_},
        Text{u"PersistentConnection", &UserPrefs::persistentConnection_, u"Y"},
        Switch{u"LoadCodesOnLogin", &UserPrefs::loadCodesOnLogin_},
        Text{u"InsuranceFormData", &UserPrefs::insuranceFormData_},
        Switch{u"ShowAdvancedSettings", &UserPrefs::showAdvancedSettings_,
               std::nullopt},  // keeps its value
        Switch{u"UseViewAllForReportsList", &UserPrefs::useViewAllForReportsList_},
        Text{u"ViewerFormData", &UserPrefs::viewerFormData_},
        Text{u"WorklistFormData", &UserPrefs::worklistFormData_},
        Text{u"ImportImagesData", &UserPrefs::importImagesData_},
        Text{u"EMRPrefsData", &UserPrefs::emrPrefsData_},
        Text{u"ImageData", &UserPrefs::imageData_},
        Text{u"ScanningDocType", &UserPrefs::scanningDocType_},
        Text{u"SolvaneImagesFolder", &UserPrefs::solvaneImagesFolder_},
    };

    template <class Visit>
    static void ForEachRow(const Visit& visit) {
        std::apply([&](const auto&... rows) { (visit(rows), ...); }, kRows);
    }

    static void RemarkOnFields(std::span<const TextIn> fields, std::size_t count, TextIn settings,
                               Remarks& remarks) {
        remarks.Begin(settings);
        remarks.NextRecord();
        std::size_t at = 0;
        ForEachRow([&](const auto& row) {
            if (at < count)
                RemarkOn(row, FieldRemarks(remarks, at, row.name, fields[at]), fields[at]);
            ++at;
        });
        if (count < fields.size()) {
            remarks.Add(RemarkKind::Defaulted, count, settings.substr(settings.size()),
                        IntegerText(static_cast<std::int64_t>(count)) +
                            u" of 31 fields: the others are reset");
        } else if (count > fields.size()) {
            const TextIn last = fields.back();
            const auto end = static_cast<std::size_t>(last.data() - settings.data()) + last.size();
            remarks.Add(RemarkKind::Ignored, fields.size(), settings.substr(end + 1),
                        u"fields after field 30 ignored");
        }
    }
};

UserPrefs::UserPrefs() = default;
UserPrefs::~UserPrefs() = default;

bool UserPrefs::PopulateSettings(TextIn StrAllSettings) {
    Populate(StrAllSettings, nullptr);
    return false;
}

void UserPrefs::Populate(TextIn settings, Remarks* remarks) {
    UserPrefs next;  // replaces the old values as a whole, or not at all when memory runs out
    next.showAdvancedSettings_ = showAdvancedSettings_;
    Table::ForEachRow([&](const auto& row) { Reset(next, row); });
    std::array<TextIn, std::tuple_size_v<decltype(Table::kRows)>> fields;
    const std::size_t count = CutInto(fields, settings, kFieldSeparator);
    std::size_t at = 0;
    Table::ForEachRow([&](const auto& row) {
        if (at < count) Read(next, row, fields[at++]);
    });
    Table::ForEachRow([&](const auto& row) { std::swap(this->*row.member, next.*row.member); });
    if (remarks != nullptr) Table::RemarkOnFields(fields, count, settings, *remarks);
}

std::vector<std::pair<std::u16string_view, std::u16string>> UserPrefs::Fields() const {
    std::vector<std::pair<std::u16string_view, std::u16string>> fields;
    Table::ForEachRow([&](const auto& row) {
        Write(*this, row, fields.emplace_back(row.name, std::u16string()).second);
    });
    return fields;
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
