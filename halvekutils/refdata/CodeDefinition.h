// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Export.h>
#include <halvekutils/base/TextIn.h>

#include <cstddef>
#include <string>
#include <string_view>

namespace halvek {

class Remarks;

/// One code table of the client: what it is called, how it is looked up, sorted and printed. Only
/// Utils::BuildCodesCollection makes one; if its record was too short, all getters are empty or
/// false.
class HALVEK_EXPORT CodeDefinition {
  public:
    ~CodeDefinition();

    /// True for a table of the system's own.
    bool IsSystemCode() const { return isSystemCode_; }
    /// True when each entity keeps its own entries.
    bool IsEntitySpecific() const { return isEntitySpecific_; }
    /// The report that prints the table; may be empty.
    std::u16string ReportName() const { return TextOf(reportName_); }
    /// True when menus offer the table.
    bool IncludedInMenu() const { return includedInMenu_; }
    /// One sort order, or two separated by the character of code 230.
    std::u16string SortByList() const { return TextOf(sortByList_); }
    /// True when there is a list to choose the table's codes from.
    bool CodeHasLookup() const { return codeHasLookup_; }
    /// The title for people.
    std::u16string CodeDescription() const { return TextOf(codeDescription_); }
    /// The key under which a collection holds the definition; empty for one without a key.
    std::u16string CodeKey() const { return TextOf(codeKey_); }

  private:
    friend class CodesCollection;

    /// Where a field stands in the record.
    struct Field {
        std::size_t start = 0;
        std::size_t length = 0;
    };

    HALVEK_HIDDEN CodeDefinition();

    /// Sets the fields from one record of the codes data, without its "|".
    ///
    /// Fields are separated by the character of code 230: description, key, has-lookup flag, menu
    /// flag, report name, sort list, then optionally the sort list's second half, the
    /// entity-specific flag and the system-code flag. Flags are true when their numeric value is 1;
    /// the menu flag alone must be exactly "1". A record of fewer than six fields sets nothing.
    /// `remarks` hears of fields that are not as they should be; it is null in a client.
    HALVEK_HIDDEN void Init(TextIn codeData, Remarks* remarks);

    std::u16string_view ViewOf(const Field& field) const {
        return std::u16string_view(record_).substr(field.start, field.length);
    }
    std::u16string TextOf(const Field& field) const { return std::u16string(ViewOf(field)); }

    std::u16string record_;  ///< holds the text of all fields
    Field codeKey_;
    Field codeDescription_;
    Field sortByList_;
    Field reportName_;
    bool codeHasLookup_ = false;
    bool includedInMenu_ = false;
    bool isEntitySpecific_ = false;
    bool isSystemCode_ = false;
};

}  // namespace halvek
