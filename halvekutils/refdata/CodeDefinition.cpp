#include <halvekutils/base/NumericText.h>
#include <halvekutils/base/Pieces.h>
#include <halvekutils/refdata/CodeDefinition.h>

#include <array>
#include <cstddef>

namespace halvek {

namespace {

constexpr char16_t kFieldSeparator = 230;
constexpr std::size_t kLeastFields = 6;

enum Field : std::size_t {
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

/// Cuts a record into its fields; those behind the last known one are ignored.
Record Cut(TextIn data) {
    Record record;
    for (const TextIn field : Pieces(data, kFieldSeparator)) {
        if (record.count == kFieldCount) break;
        record.fields[record.count++] = field;
    }
    return record;
}

bool IsOne(TextIn field) {
    return Val(field) == 1.0;
}

}  // namespace

CodeDefinition::CodeDefinition() = default;
CodeDefinition::~CodeDefinition() = default;

void CodeDefinition::Init(TextIn codeData) {
    const Record record = Cut(codeData);
    if (record.count < kLeastFields) return;
    const auto& fields = record.fields;
    codeDescription_ = fields[kDescription];
    codeKey_ = fields[kKey];
    codeHasLookup_ = IsOne(fields[kHasLookup]);
    includedInMenu_ = fields[kIncludedInMenu] == u"1";
    reportName_ = fields[kReportName];
    sortByList_ = fields[kSortBy];
    if (record.count > kSortBySecond) {
        sortByList_ += kFieldSeparator;
        sortByList_ += fields[kSortBySecond];
    }
    if (record.count > kEntitySpecific) isEntitySpecific_ = IsOne(fields[kEntitySpecific]);
    if (record.count > kSystemCode) isSystemCode_ = IsOne(fields[kSystemCode]);
}

}  // namespace halvek
