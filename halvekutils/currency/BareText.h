// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/NumericText.h>
#include <halvekutils/base/TextIn.h>

#include <string>
#include <utility>

namespace halvek {

/// The text without one of its characters.
inline std::u16string Without(std::u16string text, char16_t character) {
    std::erase(text, character);
    return text;
}

/// The text without the blanks at both ends.
inline std::u16string WithoutBlanksAround(std::u16string text) {
    const TextIn trimmed = Trimmed(text);
    return trimmed.size() == text.size() ? std::move(text) : trimmed.Str();
}

/// What the rules of currency fields call the text of a control: no "$", no blanks around it.
inline std::u16string BareText(std::u16string text) {
    return WithoutBlanksAround(Without(std::move(text), u'$'));
}

}  // namespace halvek
