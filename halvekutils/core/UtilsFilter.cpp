// SPDX-License-Identifier: MIT
#include <halvekutils/core/Utils.h>
#include <halvekutils/text/CharacterFilter.h>

namespace halvek {

bool Utils::IsAlpha(TextIn strText) const {
    return halvek::IsAlpha(strText);
}

bool Utils::RemoveUnwantedChars(TextIn strIN, std::u16string& strOUT, TextIn strReplaceWith,
                                bool bShowMessage, bool bDoNotRemoveUnwantedChars,
                                TextIn strExceptions) {
    const FilterReport report = halvek::RemoveUnwantedChars(
        strIN, strOUT, strReplaceWith, bDoNotRemoveUnwantedChars, strExceptions);
    if (bShowMessage && report.found) {
        ShowMsgBox(report.message, mbOkOnly, mbExclamation, AppName());
    }
    return report.found;
}

bool Utils::IsUnwantedChar(std::int32_t locChar) const {
    return halvek::IsUnwantedChar(locChar);
}
bool Utils::IsDateChar(std::int32_t locChar) const {
    return halvek::IsDateChar(locChar);
}

std::u16string Utils::RemoveUnprintableChars(TextIn Str) const {
    return halvek::RemoveUnprintableChars(Str);
}

}  // namespace halvek
