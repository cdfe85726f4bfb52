// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <utility>

namespace halvek {

/// The text without one of its characters.
inline std::u16string Without(std::u16string text, char16_t character) {
    std::erase(text, character);
    return text;
}

/// The text without the blanks at both ends.
inline std::u16string TrimmedText(std::u16string text) {
    text.erase(text.find_last_not_of(u' ') + 1);
    text.erase(0, text.find_first_not_of(u' '));
    return text;
}

/// The length of a text as controls count it.
inline std::int32_t LengthOf(const std::u16string& text) {
    return static_cast<std::int32_t>(text.size());
}

/// What the rules of currency fields call the text of a control: no "$", no blanks around it.
inline std::u16string BareText(std::u16string text) {
    return TrimmedText(Without(std::move(text), u'$'));
}

}  // namespace halvek
