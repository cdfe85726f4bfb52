// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Export.h>
#include <halvekutils/platform/Controls.h>
#include <halvekutils/platform/Geometry.h>

#include <cstdint>
#include <optional>

namespace halvek {

class Desktop;

/// Which edge of a pop-up a given left position sets.
enum class PopupEdge : std::int32_t {
    Left,   ///< calendar and palette: its left edge lies on the target's left edge
    Right,  ///< selection list: its right edge lies on the target's right edge
};

/// Where a pop-up should open, in twips on the screen. Each position may be absent.
struct PopupAnchor {
    PopupEdge edge = PopupEdge::Left;           ///< which edge of the pop-up `left` is for
    std::optional<std::int32_t> left;           ///< where that edge of the pop-up lies
    std::optional<std::int32_t> topUp;          ///< the target's top: the pop-up may end here
    std::optional<std::int32_t> topDown;        ///< the target's bottom: the pop-up may start here
    std::optional<Rect> screen = std::nullopt;  ///< the usable part of the target's screen
    /// Where people read from right to left: the target's right edge, on which the pop-up's right
    /// edge lies instead.
    std::optional<std::int32_t> right = std::nullopt;
    std::uint32_t window = 0;  ///< the window that the pop-up is to belong to; 0 for none

    /// True when a position is given.
    bool HasPosition() const { return left || topUp || topDown; }

    friend bool operator==(const PopupAnchor&, const PopupAnchor&) = default;
};

/// The anchor for a host's positions, rounded to whole twips. A negative position, or NaN, counts
/// as absent.
HALVEK_EXPORT PopupAnchor AnchorAt(PopupEdge edge, float posLeft, float posTopUp, float posTopDown);

/// The anchor of a pop-up beside a button or cell, on any screen. Throws ObjectNotSet when the
/// target is destroyed.
HALVEK_EXPORT PopupAnchor AnchorBeside(PopupEdge edge, const PopupTarget& target);

/// The usable part of the pop-up's screen: the target's; otherwise the one that holds the position;
/// otherwise the one on which a new dialog opens.
HALVEK_EXPORT Rect ScreenOf(const PopupAnchor& anchor, const Desktop& desktop);

/// The top left corner of a pop-up of this outer size, wholly inside the usable part of a screen.
///
/// It opens below its target when there is room, otherwise above; when neither side has room, on
/// the side that has more, moved back into the screen. Where a position is absent, it is centred. A
/// pop-up larger than the screen keeps its top left corner on it.
HALVEK_EXPORT Point PlacePopup(const PopupAnchor& anchor, Size outer, const Rect& screen);

}  // namespace halvek
