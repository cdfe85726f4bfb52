// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/platform/Geometry.h>

#include <algorithm>
#include <cstdint>

/// The measures that all windows share, in twips. `qt/helpers/Design.h` has the rest of their look.
namespace halvek::design {

inline constexpr std::int32_t kMargin = 120;  ///< between a window's edge and its contents
inline constexpr std::int32_t kGap = 80;      ///< between neighbouring parts

/// The least size of a push button, and the total room around its caption.
inline constexpr Size kButton = {1300, 420};
inline constexpr Size kAroundCaption = {360, 150};

/// The size of the buttons of a row, given the width and the height of their widest caption.
constexpr Size ButtonFor(Size caption) {
    return {std::max(kButton.width, caption.width + kAroundCaption.width),
            std::max(kButton.height, caption.height + kAroundCaption.height)};
}

}  // namespace halvek::design
