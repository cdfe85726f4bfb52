// SPDX-License-Identifier: MIT
#include <halvekutils/controls/Placement.h>
#include <halvekutils/scripted/ScriptedPlatform.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <tuple>

namespace halvek {

namespace {

constexpr Rect kMain = {0, 0, 20000, 10000};
constexpr Rect kSecond = {-20000, -3000, 20000, 10000};
constexpr Rect kBelowPanel = {600, 400, 19400, 9600};
constexpr Size kPopup = {4000, 3000};
constexpr auto kLeft = PopupEdge::Left;
constexpr auto kRight = PopupEdge::Right;
constexpr auto kMax = std::numeric_limits<std::int32_t>::max();

struct Target : PopupTarget {
    Target(const Rect& place, const Rect& screen) : place_(place), screen_(screen) {}
    Rect Place() const override { return place_; }
    Rect Screen() const override { return screen_; }
    bool Exists() const override { return true; }
    bool IsRightToLeft() const override { return isRightToLeft; }
    std::uint32_t Window() const override { return 7; }

    Rect place_;
    Rect screen_;
    bool isRightToLeft = false;
};

TEST(Placement, BesideATargetStaysWhollyOnItsScreen) {
    const std::tuple<const char*, Rect, Size, Rect, PopupEdge, Point> cases[] = {
        {"middle, right edges", {8000, 4000, 1000, 400}, kPopup, kMain, kRight, {5000, 4400}},
        {"just room below", {8000, 6600, 1000, 400}, kPopup, kMain, kLeft, {8000, 7000}},
        {"one too few below", {8000, 6601, 1000, 400}, kPopup, kMain, kLeft, {8000, 3601}},
        {"right edge", {19500, 4000, 400, 400}, kPopup, kMain, kLeft, {16000, 4400}},
        {"left edge", {100, 4000, 1000, 400}, kPopup, kMain, kRight, {0, 4400}},
        {"partly off the top", {8000, -900, 1000, 400}, kPopup, kMain, kLeft, {8000, 0}},
        {"panel at the left", {0, 4000, 700, 400}, kPopup, kBelowPanel, kRight, {600, 4400}},
        {"no room, more below", {8000, 2000, 500, 500}, {4000, 8000}, kMain, kLeft, {8000, 2000}},
        {"no room, more above", {8000, 7000, 500, 500}, {4000, 8000}, kMain, kLeft, {8000, 0}},
        {"second screen", {-5000, -2000, 900, 400}, kPopup, kSecond, kLeft, {-5000, -1600}},
        {"its corner", {-900, 6600, 900, 400}, kPopup, kSecond, kRight, {-4000, 3600}},
        {"larger than it", {-900, 0, 900, 400}, {30000, 20000}, kSecond, kLeft, {-20000, -3000}},
        {"absurd size", {8000, 4000, 500, 500}, {kMax, kMax}, kMain, kRight, {0, 0}},
    };
    for (const auto& [where, target, outer, screen, edge, expected] : cases) {
        const PopupAnchor anchor = AnchorBeside(edge, Target(target, screen));
        EXPECT_EQ(PlacePopup(anchor, outer, *anchor.screen), expected) << where;
    }
}

TEST(Placement, AlignsRightEdgesWherePeopleReadFromRightToLeft) {
    Target target({8000, 4000, 1000, 400}, kMain);
    target.isRightToLeft = true;
    for (const PopupEdge edge : {kLeft, kRight}) {
        const PopupAnchor anchor = AnchorBeside(edge, target);
        EXPECT_EQ(PlacePopup(anchor, kPopup, kMain), (Point{5000, 4400}));
        EXPECT_EQ(anchor.window, 7u);
    }
    // A host that only asks for the coordinates passes them on as they are.
    EXPECT_EQ(AnchorBeside(kLeft, target).left, 8000);
}

TEST(Placement, TakesAHostsPositionsAndCentresWhatIsNotGiven) {
    const std::tuple<const char*, PopupEdge, float, float, float, Point> cases[] = {
        {"none", kLeft, -1, -1, -1, {8000, 3500}},
        {"right edge nearer than the width", kRight, 3999, -1, -1, {0, 3500}},
        {"below only, without room", kLeft, -1, -1, 9000, {8000, 7000}},
        {"above only, without room", kLeft, -1, 2000, -1, {8000, 0}},
        {"both, room below", kLeft, -1, 5000, 5400, {8000, 5400}},
        {"both, room above", kLeft, -1, 8000, 8400, {8000, 5000}},
        {"halves to even", kLeft, 2.5F, -1, 3.5F, {2, 4}},
        {"no number", kLeft, std::nanf(""), std::nanf(""), std::nanf(""), {8000, 3500}},
        {"endless", kRight, INFINITY, -INFINITY, INFINITY, {16000, 7000}},
    };
    for (const auto& [positions, edge, left, topUp, topDown, expected] : cases) {
        const PopupAnchor anchor = AnchorAt(edge, left, topUp, topDown);
        EXPECT_EQ(PlacePopup(anchor, kPopup, kMain), expected) << positions;
    }
}

/// kMain and kSecond side by side; a new dialog opens on kMain.
struct TwoScreens : ScriptedPlatform {
    Rect ScreenRect() const override { return kMain; }
    Rect ScreenRectAt(Point point) const override { return point.left < 0 ? kSecond : kMain; }
};

TEST(Placement, BelongsOnTheScreenOfItsTargetOrElseOfItsPosition) {
    const TwoScreens desktop;
    const std::tuple<const char*, PopupAnchor, Rect> cases[] = {
        {"target", AnchorBeside(kLeft, Target({}, kBelowPanel)), kBelowPanel},
        {"nothing given", {kRight, {}, {}, {}, {}}, kMain},
        {"position", {kLeft, -1, 0, {}, {}}, kSecond},
        {"right edge on the border", {kRight, 0, {}, 0, {}}, kSecond},
        {"left edge on the border", {kLeft, 0, 0, 0, {}}, kMain},
    };
    for (const auto& [given, anchor, screen] : cases)
        EXPECT_EQ(ScreenOf(anchor, desktop), screen) << given;
}

}  // namespace
}  // namespace halvek
