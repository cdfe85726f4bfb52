// SPDX-License-Identifier: MIT
#include <halvekutils/base/CodePage.h>

#include <algorithm>
#include <array>

namespace halvek {

namespace {

// The characters of the codes 128 to 159; all other codes are the character of the same number.
constexpr std::array<char16_t, 32> kUpperControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,  //
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,  //
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,  //
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

// The codes of the characters up to the last that the page has.
constexpr auto kCodes = [] {
    std::array<std::uint8_t, 0x2123> codes{};
    codes.fill('?');
    for (std::size_t code = 0; code < 256; ++code) {
        const bool upper = code >= 0x80 && code < 0xA0;
        codes[upper ? kUpperControls[code - 0x80] : code] = static_cast<std::uint8_t>(code);
    }
    return codes;
}();

}  // namespace

std::uint8_t CodeOf(char16_t character) noexcept {
    return character < kCodes.size() ? kCodes[character] : std::uint8_t{'?'};
}

char16_t CharacterOf(std::uint8_t code) noexcept {
    return code >= 0x80 && code < 0xA0 ? kUpperControls[code - 0x80u] : code;
}

std::string ToCodePage(TextIn text) {
    std::string bytes(text.size(), '\0');
    std::ranges::transform(text, bytes.begin(),
                           [](char16_t character) { return static_cast<char>(CodeOf(character)); });
    return bytes;
}

std::u16string FromCodePage(std::string_view bytes) {
    std::u16string text(bytes.size(), u'\0');
    std::ranges::transform(bytes, text.begin(),
                           [](char byte) { return CharacterOf(static_cast<std::uint8_t>(byte)); });
    return text;
}

}  // namespace halvek
