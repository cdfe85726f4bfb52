// SPDX-License-Identifier: MIT
#include "tests/CleanState.h"

#include <halvekutils/base/NumericText.h>
#include <halvekutils/base/Utf8.h>
#include <halvekutils/selection/PastedCodes.h>
#include <halvekutils/selection/SelectGrid.h>

#include <functional>
#include <tuple>
#include <utility>
#include <vector>

namespace halvek {
namespace {

using Texts = std::vector<std::u16string>;
using Key = SelectGrid::Key;
using Kind = SelectCell::Kind;

constexpr const char16_t* kCodes = u"H:A\tAlpha\t0:B\tBeta\t1:C\tCeta\t0:it's\tquoted\t0:";

std::u16string Joined(const Texts& texts, const char16_t* separator) {
    std::u16string joined;
    for (const auto& text : texts) joined += (joined.empty() ? u"" : separator) + text;
    return joined;
}

/// C2, C3, ... and the list that has them as its entries 2, 3, ...
Texts NumberedCodes(int count) {
    Texts codes;
    for (int i = 2; i < count + 2; ++i) codes.push_back(u"C" + IntegerText(i));
    return codes;
}
std::u16string ListOf(const Texts& codes) {
    return u"H:" + Joined(codes, u"\tName\t0:") + u"\tName\t0:";
}

class SelectGridTest : public CleanState {
  protected:
    void SetUp() override { Start(); }

    SelectGrid& Open(TextIn allValues, TextIn selected = {}, TextIn typed = {}) {
        told_.clear();
        const auto tell = [this](const SelectionMessage& message) {
            told_.push_back(message.text);
            if (onMessage_) onMessage_();
        };
        grid_ = std::make_unique<SelectGrid>(
            SelectionRequest{u"Codes", allValues.Str(), selected.Str(), typed.Str()},
            Services::Current(), tell);
        grid_->Prepare();
        return *grid_;
    }

    /// The messages since the last look.
    Texts Told() { return std::exchange(told_, {}); }

    bool IsTicked(int entry) const {
        const CellPlace cell = CheckCellOf(entry);
        return grid_->Cell(cell.row, cell.column).checked;
    }
    /// The check boxes of the first band.
    std::u16string Ticked() const {
        std::u16string ticks;
        for (int entry = 1; entry <= 10; ++entry) ticks += IsTicked(entry) ? u'x' : u'-';
        return ticks.substr(0, ticks.find_last_of(u'x') + 1);
    }

    void Click(int entry) {
        const CellPlace cell = CheckCellOf(entry);
        grid_->ClickCell(cell.row, cell.column);
    }
    void Type(TextIn text) { grid_->EditBox(text, static_cast<std::int32_t>(text.size())); }

    std::unique_ptr<SelectGrid> grid_;
    Texts told_;
    std::function<void()> onMessage_;
};

TEST_F(SelectGridTest, CountsAllButThePseudoEntryAndTheLastPieceInItsCaption) {
    EXPECT_EQ(Open(kCodes).Caption(), u"Codes    [Total: 4]");
    EXPECT_EQ(Open(u"H:").Caption(), u"Codes    [Total: 0]");
    EXPECT_EQ(Open(u"H").Caption(), u"Codes");
    for (const Key key : {Key::Space, Key::Right, Key::End, Key::PageDown}) grid_->KeyDown(key);
    EXPECT_EQ(grid_->CurrentEntry(), 0);
}

TEST_F(SelectGridTest, DrawsEachCellByItsRowAndEntry) {
    SelectGrid& grid = Open(kCodes, u"C");
    const struct {
        std::int32_t row, column;
        Kind kind;
        const char16_t *text, *toolTip;
        Color background, textColor;  // -1 for none
        int alignment, points;
    } rows[] = {
        {0, 7, Kind::Header, u"Codes  (C)", u"", 0x87D4FA, -1, 1, 8},
        {1, 1, Kind::Check, u"", u" NOT SELECTED ", -1, -1, 0, 8},
        {2, 1, Kind::Code, u" ", u"   ", -1, 0xFF0000, 1, 8},
        {3, 1, Kind::Description, u" *** ALL CODES *** ", u"  *** ALL CODES ***  ", 0xEBEBEB,
         0xFF0000, 1, 7},
        {2, 3, Kind::Code, u"B", u" B ", -1, 255, 0, 8},
        {3, 3, Kind::Description, u"Beta", u" Beta ", 0xEBEBEB, 255, 0, 7},
        {1, 4, Kind::Check, u"", u" SELECTED ", -1, -1, 0, 8},
        {1, 6, Kind::Plain, u"", u"", -1, -1, 0, 8},
        {4, 1, Kind::Plain, u"", u"", -1, -1, 0, 8},
    };
    for (const auto& row : rows) {
        const SelectCell cell = grid.Cell(row.row, row.column);
        const auto where = testing::Message() << row.row << ", " << row.column;
        EXPECT_EQ(cell.kind, row.kind) << where;
        EXPECT_EQ(cell.text, row.text) << where;
        EXPECT_EQ(cell.toolTip, row.toolTip) << where;
        EXPECT_EQ(cell.background.value_or(-1), row.background) << where;
        EXPECT_EQ(cell.textColor.value_or(-1), row.textColor) << where;
        EXPECT_EQ(static_cast<int>(cell.alignment), row.alignment) << where;
        EXPECT_EQ(cell.font, (FontSpec{u"tahoma", row.points})) << where;
    }
    EXPECT_EQ(grid.AccessibleText(3, 3), u"B, Beta");
    EXPECT_EQ(grid.AccessibleText(1, 1), u"*** ALL CODES ***");
}

TEST_F(SelectGridTest, TakesOutACodeWithACommaInIt) {
    Open(u"H:A, B\tx\t0:B\tx\t0:A\tx\t0:");
    for (const int entry : {2, 3, 4, 4}) Click(entry);
    EXPECT_EQ(grid_->Box().text, u"B,B");
}

TEST_F(SelectGridTest, ChecksTheTypedCodes) {
    const struct {
        const char16_t *typed, *ticked, *choice, *told;
        int caret, selected;
    } rows[] = {
        {u"C, ,A ,", u"-x-x", u"C,A", u"", 7, 0},
        {u"  ", u"", u"", u"", 2, 0},
        {u",A", u"--x", u"B", u"Invalid Entry", 0, 1},
        {u"A,,C,,", u"--x", u"B", u"Invalid Entry", 1, 1},
        {u"A\t", u"--x", u"B", u"Invalid Entry", 0, 2},
        {u"A,x", u"-x", u"A", u"'x' is not a valid entry.", 2, 1},
        {u"A,xx,", u"-x", u"A", u"'xx' is not a valid entry.", 2, 3},
        {u"it,A", u"", u"", u"'it' is not a valid entry.", 0, 3},
        {u"A,it'", u"-x", u"A", u"<it'> is not a valid entry.", 2, 3},
        {u"A,C, A", u"-x-x", u"A,C", u"Duplicates are not allowed!", 6, 0},
        {u"A,A,x", u"-x", u"A", u"'x' is not a valid entry.", 4, 1},
    };
    for (const auto& row : rows) {
        SelectGrid& grid = Open(kCodes, u"B");
        Type(row.typed);
        const std::u16string told = row.told;
        EXPECT_EQ(grid.ValidateBox(), told.empty()) << ToUtf8(row.typed);
        EXPECT_EQ(Told(), told.empty() ? Texts() : Texts{told});
        EXPECT_EQ(Ticked(), row.ticked) << ToUtf8(row.typed);
        EXPECT_EQ(grid.Box().caret, row.caret) << ToUtf8(row.typed);
        EXPECT_EQ(grid.Box().selected, row.selected) << ToUtf8(row.typed);
        EXPECT_EQ(grid.Choice(), row.choice) << ToUtf8(row.typed);
    }
    Open(kCodes).EnableBox(false);  // nobody typed its text, so its form is not checked
    Type(u",A,,B");
    EXPECT_TRUE(grid_->ValidateBox());
    EXPECT_EQ(grid_->Choice(), u"A,B");
}

TEST_F(SelectGridTest, MovesFromCodeToCode) {
    // Entries 2 to 24 have codes but for 5 and 14; the last is the empty piece 25.
    Texts codes = NumberedCodes(23);
    codes[5 - 2] = codes[14 - 2] = u"";
    const std::tuple<int, Key, int, int> moves[] = {
        {4, Key::Right, 1, 6},      {11, Key::Left, 1, 10},  {24, Key::Right, 1, 24},
        {3, Key::Down, 1, 13},      {4, Key::Down, 1, 15},   {17, Key::Down, 1, 24},
        {23, Key::Down, 1, 23},     {24, Key::Up, 1, 13},    {8, Key::Up, 1, 8},
        {3, Key::PageDown, 9, 23},  {24, Key::PageUp, 2, 4}, {24, Key::PageUp, 9, 4},
        {22, Key::PageUp, -3, 12},  {13, Key::Home, 1, 1},   {13, Key::End, 1, 24},
        {24, Key::PageDown, 1, 24},
    };
    for (const auto& [from, key, bands, to] : moves) {
        SelectGrid& grid = Open(ListOf(codes));
        if (from > 1) Click(from);
        grid.KeyDown(key, bands);
        EXPECT_EQ(grid.CurrentEntry(), to) << from << " key " << static_cast<int>(key);
    }
}

TEST_F(SelectGridTest, UpAndDownKeepToTheirColumnPastAShortBand) {
    SelectGrid& grid = Open(ListOf(NumberedCodes(23)));  // the last band ends with entry 24
    Click(7);
    const std::pair<Key, int> moves[] = {{Key::PageDown, 24}, {Key::PageUp, 7}, {Key::Down, 17},
                                         {Key::Down, 24},     {Key::Up, 17},    {Key::Right, 18},
                                         {Key::Down, 24},     {Key::Left, 23},  {Key::Up, 13}};
    for (const auto& [key, entry] : moves) {
        grid.KeyDown(key, 2);
        EXPECT_EQ(grid.CurrentEntry(), entry);
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
    onMessage_ = [] { throw std::bad_alloc(); };
    SelectGrid& grid = Open(kCodes);
    Type(u"x");
    EXPECT_FALSE(grid.ValidateBox());
    EXPECT_TRUE(Log().ends_with("ERR in frmSelectGrid.FindOneItem: Out of memory\r\n"));
    Type(u"A");
    grid.Accept();
    EXPECT_EQ(grid.Result(), u"A");
}

}  // namespace
}  // namespace halvek
