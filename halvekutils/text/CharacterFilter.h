// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/TextIn.h>

#include <cstdint>
#include <string>

namespace halvek {

// The rules behind the members of Utils of the same names, which document them for a host.

bool IsUnwantedChar(std::int32_t locChar);
bool IsDateChar(std::int32_t locChar);
bool IsAlpha(TextIn strText);
std::u16string RemoveUnprintableChars(TextIn str);

/// What a filter has to tell.
struct FilterReport {
    bool found = false;      ///< an unwanted character was found
    std::u16string message;  ///< what the user is to read about it; empty when nothing was found
};

/// Writes the text without its unwanted characters. The report's message is left to the caller to
/// show; in debug mode the debug console of the current session gets both texts.
FilterReport RemoveUnwantedChars(TextIn strIN, std::u16string& strOUT, TextIn strReplaceWith = {},
                                 bool bDoNotRemoveUnwantedChars = false, TextIn strExceptions = {});

}  // namespace halvek
