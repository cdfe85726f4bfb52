// SPDX-License-Identifier: MIT
#include <halvekutils/base/NumericText.h>
#include <halvekutils/controls/Placement.h>
#include <halvekutils/platform/Desktop.h>

#include <algorithm>
#include <limits>

namespace halvek {

namespace {

// In 64 bits, sums of positions and lengths cannot overflow, whatever a host passes.
using Twips = std::int64_t;

/// One direction of the screen: a span that windows may use.
struct Span {
    Twips start;
    Twips length;

    Twips End() const { return start + length; }

    std::int32_t Fit(Twips position, Twips outer) const {
        return static_cast<std::int32_t>(std::max(std::min(position, End() - outer), start));
    }
    std::int32_t Centre(Twips outer) const { return Fit(start + (length - outer) / 2, outer); }
};

std::optional<std::int32_t> Given(float position) {
    constexpr float kFarthest = 1e9F;
    if (!(position >= 0)) return std::nullopt;
    return RoundToInt32(std::min(position, kFarthest));
}

std::int32_t PlaceAcross(const PopupAnchor& anchor, Twips width, const Span& screen) {
    if (anchor.right) return screen.Fit(*anchor.right - width, width);
    if (!anchor.left) return screen.Centre(width);
    return screen.Fit(anchor.edge == PopupEdge::Left ? *anchor.left : *anchor.left - width, width);
}

std::int32_t PlaceDown(const PopupAnchor& anchor, Twips height, const Span& screen) {
    const std::optional<std::int32_t>& topUp = anchor.topUp;
    const std::optional<std::int32_t>& topDown = anchor.topDown;
    if (!topUp && !topDown) return screen.Centre(height);
    constexpr Twips kNone = std::numeric_limits<Twips>::min();
    const Twips roomAbove = topUp ? *topUp - screen.start : kNone;
    const Twips roomBelow = topDown ? screen.End() - *topDown : kNone;
    const bool below = roomBelow >= height || (roomAbove < height && roomBelow >= roomAbove);
    return below ? screen.Fit(*topDown, height) : screen.Fit(*topUp - height, height);
}

}  // namespace

PopupAnchor AnchorAt(PopupEdge edge, float posLeft, float posTopUp, float posTopDown) {
    return {edge, Given(posLeft), Given(posTopUp), Given(posTopDown)};
}

PopupAnchor AnchorBeside(PopupEdge edge, const PopupTarget& target) {
    const Rect place = target.Place();
    const std::int32_t left = edge == PopupEdge::Left ? place.left : place.Right();
    PopupAnchor anchor{edge, left, place.top, place.Bottom(), target.Screen()};
    if (target.IsRightToLeft()) anchor.right = place.Right();
    anchor.window = target.Window();
    return anchor;
}

Rect ScreenOf(const PopupAnchor& anchor, const Desktop& desktop) {
    if (anchor.screen) return *anchor.screen;
    if (!anchor.HasPosition()) return desktop.ScreenRect();
    const Rect current = desktop.ScreenRect();
    // A right edge may be the border to the next screen.
    const std::int32_t inside = anchor.edge == PopupEdge::Right ? 1 : 0;
    return desktop.ScreenRectAt({anchor.left ? *anchor.left - inside : current.left,
                                 anchor.topUp.value_or(anchor.topDown.value_or(current.top))});
}

Point PlacePopup(const PopupAnchor& anchor, Size outer, const Rect& screen) {
    return {PlaceAcross(anchor, outer.width, {screen.left, screen.width}),
            PlaceDown(anchor, outer.height, {screen.top, screen.height})};
}

}  // namespace halvek
