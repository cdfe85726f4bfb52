// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Characters.h>

#include <cstdint>
#include <string>
#include <utility>

namespace halvek {

/// The text without one of its characters.
inline std::u16string Without(std::u16string text, char16_t character) {
    std::erase(text, character);
    return text;
}

/// The length of a text as controls count it.
inline std::int32_t LengthOf(const std::u16string& text) {
    return static_cast<std::int32_t>(text.size());
}

/// What the rules of currency fields call the text of a control: no "$", no blanks around it.
inline std::u16string BareText(std::u16string text) {
    return Trimmed(Without(std::move(text), u'$')).Str();
}

}  // namespace halvek
