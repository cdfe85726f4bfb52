// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Compiler.h>

#include <cstdint>

namespace halvek {

/// A colour with red in the low byte, green in the next and blue in the third.
///
/// A value with the top bit set names a colour of the desktop's own scheme, whose number from 0 to
/// 24 stands in the other bits: 5 for the background of windows, 8 for the text on it, 13 and 14
/// for what is highlighted. `kButtonFace`, which is 15, also stands for a number that has no
/// colour.
using Color = std::int32_t;

/// The colour with these parts.
constexpr Color Rgb(std::uint8_t red, std::uint8_t green, std::uint8_t blue) {
    return red | green << 8 | blue << 16;
}
/// The red of a colour, 0 to 255.
constexpr std::uint8_t RedOf(Color color) {
    return static_cast<std::uint8_t>(color & 0xFF);
}
/// The green of a colour, 0 to 255.
constexpr std::uint8_t GreenOf(Color color) {
    return static_cast<std::uint8_t>(color >> 8 & 0xFF);
}
/// The blue of a colour, 0 to 255.
constexpr std::uint8_t BlueOf(Color color) {
    return static_cast<std::uint8_t>(color >> 16 & 0xFF);
}

/// True for a colour of the desktop's scheme, whose bytes are not red, green and blue.
constexpr bool IsSchemeColor(Color color) {
    return color < 0;
}

/// True when white text reads better than black on this background.
constexpr bool IsDark(Color color) {
    return 299 * RedOf(color) + 587 * GreenOf(color) + 114 * BlueOf(color) < 128'000;
}

inline constexpr Color kBlack = Rgb(0, 0, 0);        ///< black, 0
inline constexpr Color kWhite = Rgb(255, 255, 255);  ///< white, 16777215
/// The face of the desktop's own buttons.
inline constexpr Color kButtonFace = static_cast<Color>(0x8000000F);

}  // namespace halvek
