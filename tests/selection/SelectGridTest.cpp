// SPDX-License-Identifier: MIT
#include "tests/CleanState.h"

#include <halvekutils/base/NumericText.h>
#include <halvekutils/selection/PastedCodes.h>
#include <halvekutils/selection/SelectGrid.h>

#include <tuple>

namespace halvek {
namespace {

using Key = SelectGrid::Key;
using Kind = SelectCell::Kind;

constexpr const char16_t* kCodes = u"H:A\tAlpha\t0:B\tBeta\t1:C\tCeta\t0:it's\tquoted\t0:";

class SelectGridTest : public CleanState {
  protected:
    void SetUp() override { Start(); }

    SelectGrid& Open(
        TextIn allValues, TextIn selected = {},
        const std::function<void()>& onMessage = [] { throw std::bad_alloc(); }) {
        grid_ = std::make_unique<SelectGrid>(
            SelectionRequest{u"Codes", allValues.Str(), selected.Str()}, Services::Current(),
            [onMessage](const SelectionMessage&) { onMessage(); });
        grid_->Prepare();
        return *grid_;
    }

    void Click(int entry) {
        const CellPlace cell = CheckCellOf(entry);
        grid_->ClickCell(cell.row, cell.column);
    }

    std::unique_ptr<SelectGrid> grid_;
};

/// Kind, text, tool tip, background and text colour (-1 for none), alignment, points.
using Look = std::tuple<Kind, std::u16string, std::u16string, Color, Color, int, int>;

TEST_F(SelectGridTest, DrawsEachCellByItsRowAndEntry) {
    SelectGrid& grid = Open(kCodes, u"C");
    const std::pair<CellPlace, Look> rows[] = {
        {{0, 7}, {Kind::Header, u"Codes  (C)", u"", 0x87D4FA, -1, 1, 8}},
        {{1, 1}, {Kind::Check, u"", u" NOT SELECTED ", -1, -1, 0, 8}},
        {{2, 1}, {Kind::Code, u" ", u"   ", -1, 0xFF0000, 1, 8}},
        {{3, 1},
         {Kind::Description, u" *** ALL CODES *** ", u"  *** ALL CODES ***  ", 0xEBEBEB, 0xFF0000,
          1, 7}},
        {{2, 3}, {Kind::Code, u"B", u" B ", -1, 255, 0, 8}},
        {{3, 3}, {Kind::Description, u"Beta", u" Beta ", 0xEBEBEB, 255, 0, 7}},
        {{1, 4}, {Kind::Check, u"", u" SELECTED ", -1, -1, 0, 8}},
        {{1, 6}, {Kind::Plain, u"", u"", -1, -1, 0, 8}},
        {{4, 1}, {Kind::Plain, u"", u"", -1, -1, 0, 8}},
    };
    for (const auto& [place, look] : rows) {
        const SelectCell cell = grid.Cell(place.row, place.column);
        EXPECT_EQ(
            Look(cell.kind, cell.text, cell.toolTip, cell.background.value_or(-1),
                 cell.textColor.value_or(-1), static_cast<int>(cell.alignment), cell.font.points),
            look)
            << place.row << ", " << place.column;
    }
}

TEST_F(SelectGridTest, TakesOutACodeWithACommaInIt) {
    Open(u"H:A, B\tx\t0:B\tx\t0:A\tx\t0:");
    for (const int entry : {2, 3, 4, 4}) Click(entry);
    EXPECT_EQ(grid_->Box().text, u"B,B");
}

TEST_F(SelectGridTest, MovesFromCodeToCode) {
    // Entries 2 to 24 have codes but for 5 and 14; the last is the empty piece 25.
    std::u16string list = u"H:";
    for (int i = 2; i <= 24; ++i) {
        list += (i == 5 || i == 14 ? u"" : u"C" + IntegerText(i)) + u"\tName\t0:";
    }
    const std::tuple<int, Key, int, int> moves[] = {
        {4, Key::Right, 1, 6},      {11, Key::Left, 1, 10},  {24, Key::Right, 1, 24},
        {3, Key::Down, 1, 13},      {4, Key::Down, 1, 15},   {17, Key::Down, 1, 24},
        {23, Key::Down, 1, 23},     {24, Key::Up, 1, 13},    {8, Key::Up, 1, 8},
        {3, Key::PageDown, 9, 23},  {24, Key::PageUp, 2, 4}, {24, Key::PageUp, 9, 4},
        {22, Key::PageUp, -3, 12},  {13, Key::Home, 1, 1},   {13, Key::End, 1, 24},
        {24, Key::PageDown, 1, 24},
    };
    for (const auto& [from, key, bands, to] : moves) {
        SelectGrid& grid = Open(list);
        if (from > 1) Click(from);
        grid.KeyDown(key, bands);
        EXPECT_EQ(grid.CurrentEntry(), to) << from << " key " << static_cast<int>(key);
    }
}

TEST_F(SelectGridTest, TellsTheChoiceInWords) {
    Open(kCodes, u"C,B,A");
    EXPECT_EQ(grid_->ChoiceInWords(9), u"3 selected\nC  Ceta\nB  Beta\nA  Alpha");
    EXPECT_EQ(grid_->ChoiceInWords(1), u"3 selected\nC  Ceta\nand 2 more");
}

TEST(PastedCodes, AreSeparatedByCommas) {
    const std::pair<const char16_t*, const char16_t*> rows[] = {{u"A\r\nB\r\n", u"A,B"},
                                                                {u"\tA;B ;\n, C", u"A,B,C"},
                                                                {u",A,\nB,", u",A,B,"},
                                                                {u" A,,B ", u" A,,B "},
                                                                {u";\n", u""}};
    for (const auto& [pasted, codes] : rows) EXPECT_EQ(PastedCodes(pasted), codes);
}

TEST_F(SelectGridTest, LogsAFaultAndStaysUsable) {
    SelectGrid& grid = Open(kCodes);
    grid.EditBox(u"x", 1);
    EXPECT_FALSE(grid.ValidateBox());
    EXPECT_TRUE(Log().ends_with("ERR in frmSelectGrid.FindOneItem: Out of memory\r\n"));
    grid.EditBox(u"A", 1);
    grid.Accept();
    EXPECT_EQ(grid.Result(), u"A");
}

// OK is pressed in an event loop of the host's, above the one that a message about "x" was in.
TEST_F(SelectGridTest, AcceptsNoCodesWhoseCheckHasNotReturned) {
    const SelectGrid& grid = Open(kCodes, u"", [&] { grid_->Accept(); });
    grid_->EditBox(u"A,x", 3);
    EXPECT_FALSE(grid_->ValidateBox());
    EXPECT_TRUE(grid.IsOpen());
    EXPECT_EQ(desktop_.Beeps(), 1);
}

}  // namespace
}  // namespace halvek
