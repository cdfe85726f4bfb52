#pragma once

#include <cmath>
#include <cstdint>

namespace halvek {

inline constexpr std::int32_t kTwipsPerInch = 1440;

/// A length in twips as logical pixels of a screen with `dpi` logical dots per inch.
inline int ToPixels(std::int32_t twips, double dpi) {
    return static_cast<int>(std::lround(twips * dpi / kTwipsPerInch));
}

/// A length in logical pixels as twips.
inline std::int32_t ToTwips(double pixels, double dpi) {
    return static_cast<std::int32_t>(std::lround(pixels * kTwipsPerInch / dpi));
}

}  // namespace halvek
