// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/CaseFolding.h>
#include <halvekutils/base/CodePage.h>

#include <fuzzer/FuzzedDataProvider.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

namespace halvek {

/// The fuzzer's bytes as the server would send them.
inline std::u16string FuzzText(const std::uint8_t* data, std::size_t size) {
    return FromCodePage({reinterpret_cast<const char*>(data), size});
}

/// A text of some length, from an input that holds several.
inline std::u16string FuzzText(FuzzedDataProvider& input, std::size_t most) {
    const auto length = input.ConsumeIntegralInRange<std::size_t>(0, most);
    return FromCodePage(input.ConsumeBytesAsString(length));
}

/// The rest of an input.
inline std::u16string RestAsText(FuzzedDataProvider& input) {
    return FromCodePage(input.ConsumeRemainingBytesAsString());
}

/// A text made of a few characters only, so that separators are frequent and pieces often equal.
inline std::u16string Narrowed(std::u16string text, std::u16string_view characters) {
    for (char16_t& character : text) character = characters[character % characters.size()];
    return text;
}

/// The rest of an input, made of few characters in every other one.
inline std::u16string RestAsText(FuzzedDataProvider& input, std::u16string_view characters) {
    const bool isAny = input.ConsumeBool();
    return isAny ? RestAsText(input) : Narrowed(RestAsText(input), characters);
}

// Plain versions of the library's fast functions, to compare with.

inline std::u16string Folded(std::u16string text) {
    for (char16_t& character : text) character = FoldCase(character);
    return text;
}

inline std::u16string Trimmed(const std::u16string& text) {
    const std::size_t start = std::min(text.find_first_not_of(u' '), text.size());
    return text.substr(start, text.find_last_not_of(u' ') + 1 - start);
}

/// The pieces between separators: one more than there are separators.
inline std::vector<std::u16string> Cut(std::u16string_view text, char16_t separator) {
    std::vector<std::u16string> pieces(1);
    for (const char16_t character : text) {
        if (character == separator) {
            pieces.emplace_back();
        } else {
            pieces.back() += character;
        }
    }
    return pieces;
}

/// Ends the run like a crash when a condition does not hold.
inline void Require(bool holds, const char* what) {
    if (holds) return;
    std::fprintf(stderr, "does not hold: %s\n", what);
    std::abort();
}

}  // namespace halvek
