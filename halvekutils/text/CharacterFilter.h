// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/TextIn.h>

#include <cstdint>
#include <string>

namespace halvek {

// The rules of the members of Utils with the same names, which document them for hosts.

bool IsUnwantedChar(std::int32_t locChar);
bool IsDateChar(std::int32_t locChar);
bool IsAlpha(TextIn strText);
std::u16string RemoveUnprintableChars(TextIn str);

/// What a filter reports.
struct FilterReport {
    bool found = false;      ///< an unwanted character was found
    std::u16string message;  ///< the message for the user; empty when nothing was found
};

/// Writes the text without its unwanted characters. The caller shows the report's message; in debug
/// mode the debug console of the current session shows both texts.
FilterReport RemoveUnwantedChars(TextIn strIN, std::u16string& strOUT, TextIn strReplaceWith = {},
                                 bool bDoNotRemoveUnwantedChars = false, TextIn strExceptions = {});

}  // namespace halvek
