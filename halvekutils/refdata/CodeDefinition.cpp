// SPDX-License-Identifier: MIT
#include <halvekutils/base/NumericText.h>
#include <halvekutils/base/Pieces.h>
#include <halvekutils/base/Remarks.h>
#include <halvekutils/refdata/CodeDefinition.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>

namespace halvek {

namespace {

constexpr char16_t kFieldSeparator = 230;
constexpr std::size_t kMinFields = 6;

enum FieldNumber : std::size_t {
    kDescription,
    kKey,
    kHasLookup,
    kIncludedInMenu,
    kReportName,
    kSortBy,
    kSortBySecond,
    kEntitySpecific,
    kSystemCode,
    kFieldCount,
};

bool IsOne(TextIn field) {
    if (field.size() == 1) return field.front() == u'1';  // as servers send it
    return Val(field) == 1.0;
}

void RemarkOnFewFields(TextIn record, std::size_t count, Remarks& remarks) {
    remarks.Add(
        RemarkKind::Defaulted, count, record.substr(record.size()),
        IntegerText(static_cast<std::int64_t>(count)) + u" of at least 6 fields: all empty");
}

void RemarkOnFields(std::span<const TextIn> fields, TextIn record, Remarks& remarks) {
    const auto on = [&](FieldNumber field, std::u16string_view name) {
        return FieldRemarks(remarks, field, name, fields[field]);
    };
    if (fields[kKey].empty()) {
        on(kKey, u"CodeKey").Add(RemarkKind::Defaulted, u" is empty: found by position only");
    }
    on(kHasLookup, u"CodeHasLookup").OnFlag();
    on(kIncludedInMenu, u"IncludedInMenu").OnExactFlag();
    if (fields.size() > kEntitySpecific) on(kEntitySpecific, u"IsEntitySpecific").OnFlag();
    if (fields.size() <= kSystemCode) return;
    on(kSystemCode, u"IsSystemCode").OnFlag();
    const auto end = static_cast<std::size_t>(fields.back().data() - record.data());
    const TextIn rest = record.substr(end + fields.back().size());
    if (rest.empty()) return;
    remarks.Add(RemarkKind::Ignored, kFieldCount, rest.substr(1), u"fields after field 8 ignored");
}

}  // namespace

CodeDefinition::CodeDefinition() = default;
CodeDefinition::~CodeDefinition() = default;

void CodeDefinition::Init(TextIn codeData, Remarks* remarks) {
    std::array<TextIn, kFieldCount> fields;
    const std::size_t count = CutInto(fields, codeData, kFieldSeparator);
    if (remarks != nullptr && count < kMinFields) RemarkOnFewFields(codeData, count, *remarks);
    if (count < kMinFields) return;
    if (remarks != nullptr) {
        RemarkOnFields(std::span(fields).first(std::min(count, fields.size())), codeData, *remarks);
    }
    const auto fieldOf = [&](const TextIn& text) {
        return Field{static_cast<std::size_t>(text.data() - codeData.data()), text.size()};
    };
    record_ = codeData;
    codeDescription_ = fieldOf(fields[kDescription]);
    codeKey_ = fieldOf(fields[kKey]);
    codeHasLookup_ = IsOne(fields[kHasLookup]);
    includedInMenu_ = fields[kIncludedInMenu] == u"1";
    reportName_ = fieldOf(fields[kReportName]);
    sortByList_ = fieldOf(fields[kSortBy]);
    // The second half directly follows the first, with the separator of a list of two between them.
    if (count > kSortBySecond) sortByList_.length += 1 + fields[kSortBySecond].size();
    if (count > kEntitySpecific) isEntitySpecific_ = IsOne(fields[kEntitySpecific]);
    if (count > kSystemCode) isSystemCode_ = IsOne(fields[kSystemCode]);
}

}  // namespace halvek
