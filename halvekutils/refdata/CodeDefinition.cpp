// SPDX-License-Identifier: MIT
#include <halvekutils/base/NumericText.h>
#include <halvekutils/base/Pieces.h>
#include <halvekutils/refdata/CodeDefinition.h>

#include <array>
#include <cstddef>

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

}  // namespace

CodeDefinition::CodeDefinition() = default;
CodeDefinition::~CodeDefinition() = default;

void CodeDefinition::Init(TextIn codeData) {
    std::array<TextIn, kFieldCount> fields;
    const std::size_t count = CutInto(fields, codeData, kFieldSeparator);
    if (count < kMinFields) return;
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
