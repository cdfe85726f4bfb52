// SPDX-License-Identifier: MIT
#include <halvekutils/base/NumericText.h>
#include <halvekutils/base/Pieces.h>
#include <halvekutils/refdata/CodeDefinition.h>

#include <array>
#include <cstddef>

namespace halvek {

namespace {

constexpr char16_t kFieldSeparator = 230;
constexpr std::size_t kLeastFields = 6;

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

struct Record {
    std::array<TextIn, kFieldCount> fields;
    std::size_t count = 0;
};

/// Cuts a record into its fields; those after the last known one are ignored.
Record Cut(TextIn data) {
    Record record;
    for (const TextIn field : Pieces(data, kFieldSeparator)) {
        if (record.count == kFieldCount) break;
        record.fields[record.count++] = field;
    }
    return record;
}

bool IsOne(TextIn field) {
    if (field.size() == 1) return field.front() == u'1';  // as servers send it
    return Val(field) == 1.0;
}

}  // namespace

CodeDefinition::CodeDefinition() = default;
CodeDefinition::~CodeDefinition() = default;

void CodeDefinition::Init(TextIn codeData) {
    const Record record = Cut(codeData);
    if (record.count < kLeastFields) return;
    const auto& fields = record.fields;
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
    if (record.count > kSortBySecond) sortByList_.length += 1 + fields[kSortBySecond].size();
    if (record.count > kEntitySpecific) isEntitySpecific_ = IsOne(fields[kEntitySpecific]);
    if (record.count > kSystemCode) isSystemCode_ = IsOne(fields[kSystemCode]);
}

}  // namespace halvek
