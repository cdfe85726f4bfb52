// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/TextIn.h>

#include <algorithm>
#include <string_view>

namespace halvek {

// The kinds of characters in texts, and functions that cut characters off their ends.

/// True for the blank and TAB, the characters that a number may have around it.
constexpr bool IsBlank(char16_t character) {
    return character == u' ' || character == u'\t';
}
/// True for 0 to 9.
constexpr bool IsDigit(char16_t character) {
    return character >= u'0' && character <= u'9';
}
/// True for A to Z and a to z.
constexpr bool IsLetter(char16_t character) {
    return (character >= u'A' && character <= u'Z') || (character >= u'a' && character <= u'z');
}
/// True for "-" and "+".
constexpr bool IsSign(char16_t character) {
    return character == u'-' || character == u'+';
}

/// Removes a character from the front of a text; false when the text starts with another.
constexpr bool TakeFront(std::u16string_view& text, char16_t character) {
    if (!text.starts_with(character)) return false;
    text.remove_prefix(1);
    return true;
}

/// The text without the blanks at both ends, as a view into it. TAB stays: it separates fields.
constexpr TextIn Trimmed(TextIn text) noexcept {
    while (text.starts_with(u' ')) text.remove_prefix(1);
    while (text.ends_with(u' ')) text.remove_suffix(1);
    return text;
}
/// The same for any of some characters at both ends.
constexpr std::u16string_view Trimmed(std::u16string_view text,
                                      std::u16string_view characters) noexcept {
    text.remove_prefix(std::min(text.find_first_not_of(characters), text.size()));
    return text.substr(0, text.find_last_not_of(characters) + 1);
}

}  // namespace halvek
