#include <halvekutils/scripted/ScriptedPlatform.h>
#include <halvekutils/text/Placement.h>

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <ostream>

namespace halvek {

static void PrintTo(const Point& point, std::ostream* out) {
    *out << "(" << point.left << ", " << point.top << ")";
}

namespace {

constexpr Rect kMain = {0, 0, 20000, 10000};
constexpr Rect kSecond = {-20000, -3000, 20000, 10000};
constexpr Rect kBelowPanel = {600, 400, 19400, 9600};
constexpr Size kPopup = {4000, 3000};
constexpr auto kLeft = PopupEdge::Left;
constexpr auto kRight = PopupEdge::Right;
constexpr auto kMost = std::numeric_limits<std::int32_t>::max();

class Target : public PopupTarget {
  public:
    Target(const Rect& place, const Rect& screen) : place_(place), screen_(screen) {}
    Rect Place() const override { return place_; }
    Rect Screen() const override { return screen_; }
    bool Exists() const override { return true; }

  private:
    Rect place_;
    Rect screen_;
};

TEST(Placement, BesideATargetStaysWhollyOnItsScreen) {
    const struct {
        const char* where;
        Rect target;
        Size outer;
        Rect screen;
        PopupEdge edge;
        Point expected;
    } cases[] = {
        {"middle", {8000, 4000, 1000, 400}, kPopup, kMain, kLeft, {8000, 4400}},
        {"middle, right edges", {8000, 4000, 1000, 400}, kPopup, kMain, kRight, {5000, 4400}},
        {"just room below", {8000, 6600, 1000, 400}, kPopup, kMain, kLeft, {8000, 7000}},
        {"one too few below", {8000, 6601, 1000, 400}, kPopup, kMain, kLeft, {8000, 3601}},
        {"right edge", {19500, 4000, 400, 400}, kPopup, kMain, kLeft, {16000, 4400}},
        {"left edge", {100, 4000, 1000, 400}, kPopup, kMain, kRight, {0, 4400}},
        {"partly off the left", {-300, 4000, 1000, 400}, kPopup, kMain, kLeft, {0, 4400}},
        {"partly off the top", {8000, -900, 1000, 400}, kPopup, kMain, kLeft, {8000, 0}},
        {"off the bottom", {8000, 12000, 1000, 400}, kPopup, kMain, kLeft, {8000, 7000}},
        {"panel at the left", {0, 4000, 700, 400}, kPopup, kBelowPanel, kRight, {600, 4400}},
        {"no room, more below", {8000, 2000, 500, 500}, {4000, 8000}, kMain, kLeft, {8000, 2000}},
        {"no room, more above", {8000, 7000, 500, 500}, {4000, 8000}, kMain, kLeft, {8000, 0}},
        {"larger than the screen", {8000, 4000, 500, 500}, {30000, 20000}, kMain, kRight, {0, 0}},
        {"second screen", {-5000, -2000, 900, 400}, kPopup, kSecond, kLeft, {-5000, -1600}},
        {"its right edge", {-900, -2000, 900, 400}, kPopup, kSecond, kLeft, {-4000, -1600}},
        {"its corner", {-900, 6600, 900, 400}, kPopup, kSecond, kRight, {-4000, 3600}},
        {"its left edge", {-20000, 6600, 900, 400}, kPopup, kSecond, kRight, {-20000, 3600}},
        {"larger than it", {-900, 0, 900, 400}, {30000, 20000}, kSecond, kLeft, {-20000, -3000}},
        {"absurd size", {8000, 4000, 500, 500}, {kMost, kMost}, kMain, kRight, {0, 0}},
    };
    for (const auto& row : cases) {
        const PopupAnchor anchor = AnchorBeside(row.edge, Target(row.target, row.screen));
        EXPECT_EQ(PlacePopup(anchor, row.outer, *anchor.screen), row.expected) << row.where;
    }
}

TEST(Placement, TakesAHostsPositionsAndCentresWhatIsNotGiven) {
    const float none = -1;
    const struct {
        const char* positions;
        PopupEdge edge;
        float left, topUp, topDown;
        Point expected;
    } cases[] = {
        {"none", kLeft, none, none, none, {8000, 3500}},
        {"none, right edge", kRight, none, none, none, {8000, 3500}},
        {"left only", kLeft, 500, none, none, {500, 3500}},
        {"right edge only", kRight, 9000, none, none, {5000, 3500}},
        {"right edge nearer than the width", kRight, 3999, none, none, {0, 3500}},
        {"origin", kLeft, 0, 0, 0, {0, 0}},
        {"below only", kLeft, none, none, 500, {8000, 500}},
        {"below only, without room", kLeft, none, none, 9000, {8000, 7000}},
        {"above only", kLeft, none, 5000, none, {8000, 2000}},
        {"above only, without room", kLeft, none, 2000, none, {8000, 0}},
        {"both, room below", kLeft, none, 5000, 5400, {8000, 5400}},
        {"both, room above", kLeft, none, 8000, 8400, {8000, 5000}},
        {"halves to even", kLeft, 2.5F, none, 3.5F, {2, 4}},
        {"no number", kLeft, std::nanf(""), std::nanf(""), std::nanf(""), {8000, 3500}},
        {"endless", kRight, INFINITY, -INFINITY, INFINITY, {16000, 7000}},
    };
    for (const auto& row : cases) {
        const PopupAnchor anchor = AnchorAt(row.edge, row.left, row.topUp, row.topDown);
        EXPECT_EQ(PlacePopup(anchor, kPopup, kMain), row.expected) << row.positions;
    }
}

/// kMain and kSecond side by side; a new dialog opens on kMain.
class TwoScreens : public ScriptedPlatform {
  public:
    Rect ScreenRect() const override { return kMain; }
    Rect ScreenRectAt(Point point) const override { return point.left < 0 ? kSecond : kMain; }
};

TEST(Placement, BelongsOnTheScreenOfItsTargetOrElseOfItsPosition) {
    const TwoScreens desktop;
    const PopupAnchor beside = AnchorBeside(kLeft, Target({0, 0, 100, 100}, kBelowPanel));
    const struct {
        const char* anchor;
        PopupAnchor given;
        Rect expected;
    } cases[] = {
        {"target", beside, kBelowPanel},
        {"nothing given", {kRight, {}, {}, {}, {}}, kMain},
        {"position", {kLeft, -1, 0, {}, {}}, kSecond},
        {"right edge on the border", {kRight, 0, {}, 0, {}}, kSecond},
        {"left edge on the border", {kLeft, 0, 0, 0, {}}, kMain},
        {"top only", {kLeft, {}, 500, {}, {}}, kMain},
    };
    for (const auto& row : cases)
        EXPECT_EQ(ScreenOf(row.given, desktop), row.expected) << row.anchor;
}

}  // namespace
}  // namespace halvek
