// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Compiler.h>

#include <cstdint>

namespace halvek {

/// A place on the screen, in twips (1/1440 inch).
struct Point {
    std::int32_t left = 0;  ///< from the left edge of the main screen
    std::int32_t top = 0;   ///< from its top edge

    friend bool operator==(const Point&, const Point&) = default;
};

/// A width and a height, in twips.
struct Size {
    std::int32_t width = 0;   ///< from left to right
    std::int32_t height = 0;  ///< from top to bottom

    friend bool operator==(const Size&, const Size&) = default;
};

/// A rectangle, in twips.
struct Rect {
    std::int32_t left = 0;    ///< its left edge
    std::int32_t top = 0;     ///< its top edge
    std::int32_t width = 0;   ///< from left to right
    std::int32_t height = 0;  ///< from top to bottom

    /// The first place to the right of it.
    std::int32_t Right() const { return left + width; }
    /// The first place below it.
    std::int32_t Bottom() const { return top + height; }
    friend bool operator==(const Rect&, const Rect&) = default;
};

}  // namespace halvek
