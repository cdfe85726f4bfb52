// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Internal.h>

#include <cstddef>
#include <string_view>

namespace halvek {

/// The lower-case form of A-Z and of the accented letters of Windows-1252; any other character is
/// returned unchanged.
constexpr char16_t FoldCase(char16_t character) {
    if (character >= u'A' && character <= u'Z') return static_cast<char16_t>(character + 0x20);
    if (character < 0xC0) return character;
    if (character <= 0xDE && character != 0xD7) return static_cast<char16_t>(character + 0x20);
    switch (character) {
        case 0x160:  // S with caron
        case 0x152:  // OE
        case 0x17D:  // Z with caron
            return static_cast<char16_t>(character + 1);
        case 0x178:  // Y with diaeresis
            return 0xFF;
        default:
            return character;
    }
}

// Four characters at a time: keys are compared and hashed for every record of the server's and for
// every look-up. One character at a time, this takes two to five times as long.

/// True when the texts differ in letter case at most.
HALVEK_INTERNAL bool EqualFolded(std::u16string_view left, std::u16string_view right) noexcept;

/// True when a text begins with another, letter case ignored.
inline bool StartsFolded(std::u16string_view text, std::u16string_view start) noexcept {
    return EqualFolded(text.substr(0, start.size()), start);
}
/// True when a text ends with another, letter case ignored.
inline bool EndsFolded(std::u16string_view text, std::u16string_view end) noexcept {
    return text.size() >= end.size() && EqualFolded(text.substr(text.size() - end.size()), end);
}

/// A hash that is the same for texts that EqualFolded calls equal.
std::size_t HashFolded(std::u16string_view text) noexcept;

}  // namespace halvek
