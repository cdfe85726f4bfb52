#include "tests/CleanState.h"
#include "tests/FakeServices.h"
#include "tests/FaultOf.h"

#include <halvekutils/dialogs/ColorPalette.h>
#include <halvekutils/dialogs/ColorPaletteLayout.h>

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace halvek {
namespace {

using Texts = std::vector<std::u16string>;
using Key = ColorPalette::Key;

TEST(ColorPalette, ShowsTheFirstEntryAndFromTheSecondToTheLastButTwoTheUsedOnes) {
    const std::pair<StringArray, std::vector<PaletteCell>> cases[] = {
        {{1, Texts{u"7"}}, {{7, 1}}},
        {{1, Texts{u"-1", u"2", u"3"}}, {{-1, 1}}},
        {{1, Texts{u"-2147483643", u"2", u"3", u"4"}}, {{-2147483643, 1}, {2, 2}}},
        {{1, Texts{u"1", u"-1", u" 3 mg", u"-9", u"", u"red", u"7", u"8"}},
         {{1, 1}, {3, 3}, {0, 5}, {0, 6}}},
        {{1, Texts{u"1", u"2147483648", u"2147483647", u"1e99", u"-1e99", u"-0.9", u"7", u"8"}},
         {{1, 1}, {2147483647, 3}, {-1, 6}}},
        {{-1, Texts{u"8", u"9", u"1", u"2", u"3", u"4"}}, {{1, 1}, {2, 2}}},
    };
    FakeServices session;
    for (const auto& [colors, cells] : cases) {
        EXPECT_EQ(ColorPalette(colors, {}, session).Cells(), cells);
    }
    EXPECT_EQ(session.logged, (Texts{u"Error in Utils.ShowColor color 2: Overflow",
                                     u"Error in Utils.ShowColor color 4: Overflow"}));
    const std::pair<StringArray, int> faults[] = {
        {{}, 9}, {{1, 0}, 9}, {{2, 9}, 9}, {{-9, 0}, 9}, {{1, Texts{u"1e10"}}, 6}};
    for (const auto& [colors, fault] : faults) {
        EXPECT_EQ(FaultOf([&] { ColorPalette palette(colors, {}, session); }), fault);
    }
}

TEST(ColorPalette, KeysMoveOverTheRowsAndChoose) {
    FakeServices session;
    ColorPalette palette(StringArray(1, 22), {}, session);  // three rows of six and one of two
    const std::pair<Key, int> moves[] = {
        {Key::Left, 1},   {Key::Up, 1},        {Key::Previous, 20}, {Key::Next, 1},
        {Key::End, 20},   {Key::Right, 20},    {Key::Up, 14},       {Key::Right, 15},
        {Key::Down, 20},  {Key::PageUp, 8},    {Key::PageDown, 20}, {Key::PageUp, 8},
        {Key::PageUp, 2}, {Key::PageDown, 14}, {Key::Home, 1},      {Key::Right, 2}};
    for (const auto& [key, cell] : moves) {
        palette.KeyDown(key, 2);
        EXPECT_EQ(palette.Current(), cell) << static_cast<int>(key);
    }
    palette.Changed = [&] { EXPECT_FALSE(palette.IsOpen() || !session.shown.empty()); };
    palette.KeyDown(Key::Enter);
    palette.KeyDown(Key::Left);
    palette.Click(1);
    EXPECT_EQ(palette.ReturnValue(), u"0\t2");
    EXPECT_EQ(session.shown, Texts{u"CLICKED COLOR 2"});
    EXPECT_EQ(FaultOf([&] { palette.Click(21); }), 9);
}

TEST(ColorPalette, RowsThatTheScreenHasNoRoomForAreScrolledTo) {
    EXPECT_EQ(PaletteCellPlace(9), (Rect{1250, 650, 600, 600}));
    const Size screen = {9000, 4500};
    const ColorPaletteLayout all = LayOutColorPalette(6, 200, screen, {50, 620});
    EXPECT_EQ(all.form, (Size{3930, 4500}));
    EXPECT_FALSE(all.scrolls);
    const ColorPaletteLayout few = LayOutColorPalette(7, 200, screen, {50, 621});
    EXPECT_TRUE(few.scrolls && few.rowsOnPage == 5 && few.frame.width == 3900);
    EXPECT_EQ(LayOutColorPalette(1667, 200, {600, 600}, {}).rowsOnPage, 1);
}

TEST_F(CleanState, ShowColorReturnsTheColourAndItsIndexAndLogsItsFaults) {
    const auto utils = Utils::Create();
    utils->InitUtils(u"", u"", u"", false, u"");
    EXPECT_EQ(utils->ShowColor(), u"");
    utils->InitPrefs(StringArray(1, Texts{u"5", u"-1", u"255", u"0", u"0"}), 0, 0, 0, 0);
    EXPECT_EQ(utils->ShowColorAndCalculateCoordinates(), u"");
    desktop_.OnColorPalette([](ColorPalette& palette) {
        EXPECT_EQ(palette.Anchor(), (PopupAnchor{PopupEdge::Left, 70, {}, 90}));
        palette.Click(2);
    });
    EXPECT_EQ(utils->ShowColor(70, -1, 90), u"255\t3");
    desktop_.OnColorPalette([](ColorPalette& palette) { palette.KeyDown(Key::Escape); });
    desktop_.OnColorPalette([](ColorPalette& palette) { palette.KeyDown(Key::Right); });
    for (int i = 0; i < 2; ++i) EXPECT_EQ(utils->ShowColorAndCalculateCoordinates(), u"");
    const std::string stamp = "03/05/24 09:07:03 AM\tnina\tError in Utils.ShowColor ";
    EXPECT_EQ(ReadFile(machine_.ownFolder / "Error.Log"),
              stamp + "Subscript out of range: color 1\r\n" + stamp +
                  "Invalid argument: no answer for the dialog Color Palette\r\n");
}

}  // namespace
}  // namespace halvek
