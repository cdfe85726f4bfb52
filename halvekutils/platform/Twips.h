// SPDX-License-Identifier: MIT
#pragma once

#include <cmath>
#include <cstdint>

namespace halvek {

/// The number of twips in an inch.
inline constexpr std::int32_t kTwipsPerInch = 1440;

/// The longest length that the library works with, 17 kilometres: sums of a few stay in range.
inline constexpr std::int32_t kMaxTwips = 1'000'000'000;

/// A computed length, limited to the longest one.
constexpr std::int32_t LimitedTwips(std::int64_t twips) {
    return static_cast<std::int32_t>(twips < kMaxTwips ? twips : kMaxTwips);
}

/// A length in twips as logical pixels of a screen with `dpi` logical dots per inch.
inline int ToPixels(std::int32_t twips, double dpi) {
    return static_cast<int>(std::lround(twips * dpi / kTwipsPerInch));
}

/// A length in logical pixels as twips.
inline std::int32_t ToTwips(double pixels, double dpi) {
    return LimitedTwips(std::llround(pixels * kTwipsPerInch / dpi));
}

}  // namespace halvek
