#pragma once

#include <halvekutils/base/Export.h>
#include <halvekutils/base/TextIn.h>

#include <string>

namespace halvek {

/// One code table that the client knows. Made by Utils::BuildCodesCollection only.
class HALVEK_EXPORT CodeDefinition {
  public:
    ~CodeDefinition();

    /// Sets the fields from one record of the codes data, without its "|".
    ///
    /// Fields are parted by the character of code 230: description, key, has-lookup flag, menu
    /// flag, report name, sort list, then optionally the sort list's second half, the
    /// entity-specific flag and the system-code flag. Flags are true when their numeric value is 1;
    /// the menu flag alone must be exactly "1". A record of fewer than six fields sets nothing.
    void Init(TextIn codeData);

    bool IsSystemCode() const { return isSystemCode_; }
    bool IsEntitySpecific() const { return isEntitySpecific_; }
    std::u16string ReportName() const { return reportName_; }
    bool IncludedInMenu() const { return includedInMenu_; }
    /// One sort order, or two parted by the character of code 230.
    std::u16string SortByList() const { return sortByList_; }
    bool CodeHasLookup() const { return codeHasLookup_; }
    std::u16string CodeDescription() const { return codeDescription_; }
    std::u16string CodeKey() const { return codeKey_; }

  private:
    friend class CodesCollection;
    CodeDefinition();

    std::u16string codeKey_;
    std::u16string codeDescription_;
    bool codeHasLookup_ = false;
    std::u16string sortByList_;
    bool includedInMenu_ = false;
    std::u16string reportName_;
    bool isEntitySpecific_ = false;
    bool isSystemCode_ = false;
};

}  // namespace halvek
