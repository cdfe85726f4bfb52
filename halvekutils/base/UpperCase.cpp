// SPDX-License-Identifier: MIT
#include <halvekutils/base/UpperCase.h>

#include <algorithm>
#include <iterator>

namespace halvek {

namespace {

enum class Capitals {
    Before,  ///< a fixed distance before the small letters
    Even,    ///< in pairs: capital letters have even codes
    Odd,     ///< in pairs: capital letters have odd codes
};

struct Letters {
    char16_t first;
    char16_t last;
    Capitals capitals;
    int distance = 0;
};

// In the order of their codes.
constexpr Letters kAlphabets[] = {
    {u'a', u'z', Capitals::Before, 0x20},
    {0xB5, 0xB5, Capitals::Before, 0xB5 - 0x39C},  // the micro sign is a mu
    {0xE0, 0xF6, Capitals::Before, 0x20},
    {0xF8, 0xFE, Capitals::Before, 0x20},
    {0xFF, 0xFF, Capitals::Before, 0xFF - 0x178},
    {0x100, 0x12F, Capitals::Even},
    {0x131, 0x131, Capitals::Before, 0x131 - u'I'},  // without a dot
    {0x132, 0x137, Capitals::Even},
    {0x139, 0x148, Capitals::Odd},
    {0x14A, 0x177, Capitals::Even},
    {0x179, 0x17E, Capitals::Odd},
    {0x17F, 0x17F, Capitals::Before, 0x17F - u'S'},
    {0x1A0, 0x1A5, Capitals::Even},
    {0x1AF, 0x1B0, Capitals::Odd},
    {0x1CD, 0x1DC, Capitals::Odd},
    {0x1DE, 0x1EF, Capitals::Even},
    {0x1F8, 0x21F, Capitals::Even},
    {0x222, 0x233, Capitals::Even},
    {0x3AC, 0x3AC, Capitals::Before, 0x3AC - 0x386},
    {0x3AD, 0x3AF, Capitals::Before, 0x3AD - 0x388},
    {0x3B1, 0x3C1, Capitals::Before, 0x20},
    {0x3C2, 0x3C2, Capitals::Before, 0x3C2 - 0x3A3},  // the last letter of a word
    {0x3C3, 0x3CB, Capitals::Before, 0x20},
    {0x3CC, 0x3CC, Capitals::Before, 0x3CC - 0x38C},
    {0x3CD, 0x3CE, Capitals::Before, 0x3CD - 0x38E},
    {0x430, 0x44F, Capitals::Before, 0x20},
    {0x450, 0x45F, Capitals::Before, 0x50},
    {0x460, 0x481, Capitals::Even},
    {0x48A, 0x4BF, Capitals::Even},
    {0x4C1, 0x4CE, Capitals::Odd},
    {0x4CF, 0x4CF, Capitals::Before, 0x4CF - 0x4C0},
    {0x4D0, 0x52F, Capitals::Even},
    {0x561, 0x586, Capitals::Before, 0x30},
    {0x1E00, 0x1E95, Capitals::Even},
    {0x1EA0, 0x1EFF, Capitals::Even},
};

}  // namespace

char16_t UpperCase(char16_t character) noexcept {
    const auto* const letters = std::ranges::lower_bound(kAlphabets, character, {}, &Letters::last);
    if (letters == std::end(kAlphabets) || character < letters->first) return character;
    const bool isOdd = character % 2 != 0;
    switch (letters->capitals) {
        case Capitals::Even:
            return static_cast<char16_t>(isOdd ? character - 1 : character);
        case Capitals::Odd:
            return static_cast<char16_t>(isOdd ? character : character - 1);
        default:
            return static_cast<char16_t>(character - letters->distance);
    }
}

}  // namespace halvek
