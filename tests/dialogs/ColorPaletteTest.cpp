// SPDX-License-Identifier: MIT
#include "tests/CleanState.h"
#include "tests/FakeServices.h"
#include "tests/FaultOf.h"

namespace halvek {
namespace {

using Texts = std::vector<std::u16string>;
using Key = ColorPalette::Key;

TEST(ColorPalette, ShowsTheFirstEntryAndFromTheSecondToTheLastButTwoTheUsedOnes) {
    const std::pair<StringArray, std::vector<PaletteCell>> cases[] = {
        {{1, Texts{u"-1", u"2", u"3"}}, {{-1, 1}}},
        {{1, Texts{u"-2147483643", u"2", u"3", u"4"}}, {{-2147483643, 1}, {2, 2}}},
        {{1, Texts{u"1", u"-1", u" 3 mg", u"-9", u"red", u"7", u"8"}}, {{1, 1}, {3, 3}, {0, 5}}},
        {{1, Texts{u"1", u"1e99", u"2147483647", u"-1e99", u"7", u"8"}}, {{1, 1}, {2147483647, 3}}},
        {{-1, Texts{u"8", u"9", u"1", u"2", u"3", u"4"}}, {{1, 1}, {2, 2}}},
    };
    FakeServices session;
    for (const auto& [colors, cells] : cases)
        EXPECT_EQ(ColorPalette(colors, {}, session).Cells(), cells);
    EXPECT_EQ(session.logged, Texts{u"Error in Utils.ShowColor color 2: Overflow"});
    for (const StringArray& colors : {StringArray(), {1, 0}, {2, 9}, {-9, 0}})
        EXPECT_EQ(FaultOf([&] { ColorPalette palette(colors, {}, session); }), 9);
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
    EXPECT_EQ(palette.Result(), u"0\t2");
    EXPECT_EQ(session.shown, Texts{u"CLICKED COLOR 2"});
}

}  // namespace
}  // namespace halvek
