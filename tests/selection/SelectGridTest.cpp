#include "tests/CleanState.h"

#include <halvekutils/base/NumericText.h>
#include <halvekutils/base/Utf8.h>
#include <halvekutils/core/Utils.h>
#include <halvekutils/selection/SelectGrid.h>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <random>
#include <string>
#include <vector>

namespace halvek {
namespace {

using Texts = std::vector<std::u16string>;
using Key = SelectGrid::Key;
using Focus = SelectGrid::BoxFocus;
using Kind = SelectCell::Kind;

constexpr const char16_t* kCodes = u"H:A\tAlpha\t0:B\tBeta\t1:C\tCeta\t0:it's\tquoted\t0:";

/// Codes C2, C3, ... as entries 2 and up.
std::u16string NumberedCodes(int count) {
    std::u16string values = u"H:";
    for (int i = 2; i < count + 2; ++i)
        values.append(u"C").append(IntegerText(i)).append(u"\tName\t0:");
    return values;
}

class SelectGridTest : public CleanState {
  protected:
    void SetUp() override { Utils::Create()->InitUtils(u"", u"Front Desk", u"", false, u""); }

    SelectGrid& Open(TextIn allValues, TextIn selected = {}, TextIn typed = {}) {
        told_.clear();
        SelectionRequest request{u"Codes", allValues.Str(), selected.Str(), typed.Str()};
        grid_ = std::make_unique<SelectGrid>(std::move(request), Services::Current(),
                                             [this](const SelectionMessage& message) {
                                                 told_.push_back(message);
                                                 if (onMessage_) onMessage_();
                                             });
        grid_->Prepare();
        return *grid_;
    }

    /// The messages since the last look.
    Texts Told() {
        Texts texts;
        for (const SelectionMessage& message : told_) texts.push_back(message.text);
        told_.clear();
        return texts;
    }

    std::u16string Ticked() const {
        std::u16string ticks;
        for (std::int32_t row = 1; row <= grid_->RowCount(); row += 3) {
            for (std::int32_t column = 1; column <= 10; ++column) {
                ticks += grid_->Cell(row, column).checked ? u'x' : u'-';
            }
        }
        return ticks.substr(0, ticks.find_last_of(u'x') + 1);
    }

    void Type(TextIn text) { grid_->EditBox(text, static_cast<std::int32_t>(text.size())); }

    std::unique_ptr<SelectGrid> grid_;
    std::vector<SelectionMessage> told_;
    std::function<void()> onMessage_;
};

TEST_F(SelectGridTest, MarksTheIncomingSelectionAndTellsOfUnknownCodes) {
    const struct {
        const char16_t *selected, *box, *ticked;
        Texts told;
    } rows[] = {
        {u"", u"", u"", {}},
        {u" C , A", u"C,A", u"-x-x", {}},
        {u"A,A,,A", u"A", u"-x", {}},
        {u"a,B,x'y", u"B", u"--x", {u"'a' is not a valid entry.", u"<x'y> is not a valid entry."}},
        {u"it's", u"it's", u"----x", {}},
    };
    for (const auto& row : rows) {
        SelectGrid& grid = Open(kCodes, row.selected);
        EXPECT_EQ(Told(), row.told);
        EXPECT_EQ(grid.Box().text, row.box);
        EXPECT_EQ(Ticked(), row.ticked);
        EXPECT_EQ(grid.HeaderText(),
                  *row.box == 0 ? u"Codes" : u"Codes  (" + std::u16string(row.box) + u")");
        grid.Accept();
        EXPECT_FALSE(grid.IsOpen());
        EXPECT_EQ(grid.ReturnValue(), u"CANCEL") << ToUtf8(row.selected);
        Open(kCodes, row.selected).Cancel();
        EXPECT_EQ(grid_->ReturnValue(), row.selected);
    }
}

TEST_F(SelectGridTest, CountsAllButThePseudoEntryAndTheLastPieceInItsCaption) {
    EXPECT_EQ(Open(kCodes).Caption(), u"Codes    [Total: 4]");
    EXPECT_EQ(Open(u"H:").Caption(), u"Codes    [Total: 0]");
    EXPECT_EQ(Open(u"H").Caption(), u"Codes");
    EXPECT_EQ(grid_->CurrentEntry(), 0);
    for (const Key key : {Key::Space, Key::Right, Key::End, Key::PageDown}) grid_->KeyDown(key);
    EXPECT_EQ(grid_->CurrentCell(), CellPlace());
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
        {1, 3, Kind::Check, u"", u" NOT SELECTED ", -1, -1, 0, 8},
        {2, 3, Kind::Code, u"B", u" B ", -1, 255, 0, 8},
        {3, 3, Kind::Description, u"Beta", u" Beta ", 0xEBEBEB, 255, 0, 7},
        {1, 4, Kind::Check, u"", u" SELECTED ", -1, -1, 0, 8},
        {1, 6, Kind::Plain, u"", u"", -1, -1, 0, 8},
        {2, 6, Kind::Code, u"", u"", -1, -1, 0, 8},
        {3, 10, Kind::Description, u"", u"", 0xEBEBEB, -1, 0, 7},
        {4, 1, Kind::Plain, u"", u"", -1, -1, 0, 8},
        {2, 0, Kind::Plain, u"", u"", -1, -1, 0, 8},
        {2, 11, Kind::Plain, u"", u"", -1, -1, 0, 8},
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
    EXPECT_EQ(grid.AccessibleText(3, 3), u"B, Beta, not selected, deleted");
    EXPECT_EQ(grid.AccessibleText(2, 4), u"C, Ceta, selected");
    EXPECT_EQ(grid.AccessibleText(1, 1), u"*** ALL CODES ***, not selected");
    EXPECT_EQ(grid.AccessibleText(2, 6), u"");
}

TEST_F(SelectGridTest, TicksByMouseAndSpaceAppendAndRemoveCodes) {
    SelectGrid& grid = Open(kCodes, u"A");
    grid.ClickCell(3, 4);
    EXPECT_EQ(grid.CurrentCell(), (CellPlace{1, 4}));
    grid.KeyDown(Key::Left);
    grid.KeyDown(Key::Space);
    EXPECT_EQ(grid.Box().text, u"A,C,B");
    EXPECT_EQ(grid.Box().caret, 5);
    grid.ClickCell(1, 2);
    EXPECT_EQ(grid.HeaderText(), u"Codes  (C,B)");
    grid.ClickCell(2, 6);   // blank
    grid.ClickCell(2, 10);  // past the last entry
    EXPECT_EQ(grid.CurrentEntry(), 2);
    grid.ClickHeader();
    EXPECT_EQ(grid.ReturnValue(), u"C,B");
    grid.ClickCell(1, 2);
    EXPECT_EQ(grid.ReturnValue(), u"C,B");  // it has ended
}

TEST_F(SelectGridTest, AToggleTidiesWhatStandsUncheckedInTheBox) {
    SelectGrid& grid = Open(kCodes, u"A");
    Type(u" x ,,A, A,");
    EXPECT_EQ(grid.HeaderText(), u"Codes  (A)");  // nothing is checked yet
    grid.ClickCell(1, 4);
    EXPECT_EQ(grid.Box().text, u"x,A,A,C");
    grid.ClickCell(1, 2);
    EXPECT_EQ(grid.Box().text, u"x,C");
    grid.ClickHeader();
    EXPECT_EQ(grid.ReturnValue(), u"x,C");
}

TEST_F(SelectGridTest, ThePseudoEntryTakesAllCodesOrNone) {
    SelectGrid& grid =
        Open(u"H:A\tx\t0:::B\ty\t1: *** ALL CODES *** \tz\t0: \tblank\t0:A\tx\t0:", u"B");
    grid.KeyDown(Key::Home);
    grid.KeyDown(Key::Space);
    EXPECT_EQ(Ticked(), u"xx--xx-x");
    EXPECT_EQ(grid.Box().text, u"A,B,A");
    EXPECT_EQ(grid.AccessibleText(1, 2), u"A, x, selected");
    grid.Accept();  // the list holds A twice
    EXPECT_EQ(Told(), Texts{u"Duplicates are not allowed!"});
    EXPECT_TRUE(grid.IsOpen());
    grid.KeyDown(Key::Space);
    grid.KeyDown(Key::Space);
    EXPECT_EQ(Ticked(), u"");
    EXPECT_EQ(grid.HeaderText(), u"Codes");
    grid.KeyDown(Key::Enter);
    EXPECT_EQ(grid.ReturnValue(), u"");
}

TEST_F(SelectGridTest, ChecksTheTypedCodes) {
    const struct {
        const char16_t *typed, *ticked, *choice, *told, *title;
        int caret, selected;
    } rows[] = {
        {u"A", u"-x", u"A", u"", u"", 1, 0},
        {u"C, A ,", u"-x-x", u"C,A", u"", u"", 6, 0},
        {u"A, ,B", u"-xx", u"A,B", u"", u"", 5, 0},
        {u"  ", u"", u"", u"", u"", 2, 0},
        {u",A", u"--x", u"B", u"Invalid Entry", u"Invalid Entry", 0, 1},
        {u"A,,C,,", u"--x", u"B", u"Invalid Entry", u"Invalid Entry", 1, 1},
        {u"A\t", u"--x", u"B", u"Invalid Entry", u"Invalid Entry", 0, 2},
        {u"A\u0142", u"--x", u"B", u"Invalid Entry", u"Invalid Entry", 0, 2},
        {u"A,x,C", u"-x", u"A", u"'x' is not a valid entry.", u"", 2, 2},
        {u"A,x", u"-x", u"A", u"'x' is not a valid entry.", u"", 2, 1},
        {u"A,xx,", u"-x", u"A", u"'xx' is not a valid entry.", u"", 2, 3},
        {u"it,A", u"", u"", u"'it' is not a valid entry.", u"", 0, 3},
        {u"A,it'", u"-x", u"A", u"<it'> is not a valid entry.", u"", 2, 3},
        {u"A,C, A", u"-x-x", u"A,C", u"Duplicates are not allowed!", u"", 6, 0},
        {u"A,A,x", u"-x", u"A", u"'x' is not a valid entry.", u"", 4, 1},
    };
    for (const auto& row : rows) {
        SelectGrid& grid = Open(kCodes, u"B");
        Type(row.typed);
        const std::u16string told = row.told;
        EXPECT_EQ(grid.ValidateBox(), told.empty()) << ToUtf8(row.typed);
        ASSERT_EQ(told_.size(), told.empty() ? 0u : 1u) << ToUtf8(row.typed);
        if (!told.empty()) {
            EXPECT_EQ(told_[0].text, told);
            EXPECT_EQ(told_[0].title, row.title);
            EXPECT_EQ(told_[0].icon == SelectionMessage::Icon::Information,
                      told.ends_with(u"entry."));
        }
        EXPECT_EQ(Ticked(), row.ticked) << ToUtf8(row.typed);
        EXPECT_EQ(grid.Box().text, row.typed);
        EXPECT_EQ(grid.Box().caret, row.caret) << ToUtf8(row.typed);
        EXPECT_EQ(grid.Box().selected, row.selected) << ToUtf8(row.typed);
        EXPECT_EQ(grid.ReturnValue(), row.choice) << ToUtf8(row.typed);
    }
}

TEST_F(SelectGridTest, ADisabledBoxIsNotCheckedForItsForm) {
    SelectGrid& grid = Open(kCodes);
    grid.EnableBox(false);
    Type(u",A,,B");
    EXPECT_TRUE(grid.ValidateBox());
    EXPECT_EQ(grid.ReturnValue(), u"A,B");
}

TEST_F(SelectGridTest, ChangedMeansAToggleAnEmptiedBoxOrOtherMarks) {
    const struct {
        void (*act)(SelectGrid&);
        const char16_t* returned;
    } rows[] = {
        {[](SelectGrid&) {}, u"CANCEL"},
        {[](SelectGrid& grid) { grid.FocusBox(Focus::Entered); }, u"CANCEL"},
        {[](SelectGrid& grid) { grid.EditBox(u"A,", 2), grid.ReleaseComma(); }, u"CANCEL"},
        {[](SelectGrid& grid) { grid.EditBox(u"x", 1), grid.EditBox(u"A", 1); }, u"CANCEL"},
        {[](SelectGrid& grid) { grid.KeyDown(Key::End), grid.TypeLetter(u'b', false); }, u"CANCEL"},
        {[](SelectGrid& grid) { grid.EditBox(u"A,B", 3); }, u"A,B"},
        {[](SelectGrid& grid) { grid.EditBox(u"B", 1); }, u"B"},
        {[](SelectGrid& grid) { grid.EditBox(u"", 0); }, u""},
        {[](SelectGrid& grid) { grid.EditBox(u" ", 1); }, u""},
        {[](SelectGrid& grid) { grid.EditBox(u"", 0), grid.EditBox(u"A", 1); }, u"A"},
        {[](SelectGrid& grid) { grid.ClickCell(1, 2), grid.ClickCell(1, 2); }, u"A"},
    };
    for (const auto& row : rows) {
        SelectGrid& grid = Open(kCodes, u"A");
        row.act(grid);
        grid.Accept();
        EXPECT_FALSE(grid.IsOpen());
        EXPECT_EQ(grid.ReturnValue(), row.returned) << &row - rows;
        Open(kCodes, u" A,").EditBox(u"B", 1);
        row.act(*grid_);
        grid_->Cancel();
        EXPECT_EQ(grid_->ReturnValue(), u" A,");
    }
}

TEST_F(SelectGridTest, ATypedCharacterIsCheckedLaterThanTheFirstFocus) {
    const struct {
        const char16_t *selected, *typed, *box;
    } rows[] = {{u"", u"x", u"x"}, {u"A", u"x", u"A,x"}, {u"", u",", u","}};
    for (const auto& row : rows) {
        SelectGrid& grid = Open(kCodes, row.selected, row.typed);
        EXPECT_EQ(grid.Box().text, row.box);
        EXPECT_EQ(grid.Box().caret, static_cast<std::int32_t>(grid.Box().text.size()));
        EXPECT_EQ(grid.ReturnValue(), row.selected);
        grid.FocusBox(Focus::Entered);
        grid.FocusBox(Focus::Restored);
        EXPECT_EQ(Told(), Texts());
        grid.FocusBox(Focus::Entered);
        EXPECT_EQ(Told().size(), 1u);
    }
}

TEST_F(SelectGridTest, ShowsCaretAndMarksBeforeAMessageAndIgnoresChecksMeanwhile) {
    SelectGrid& grid = Open(kCodes);
    Type(u"A,x");
    std::int32_t caretShown = -1;
    grid.Changed = [&] { caretShown = grid.Box().caret; };
    onMessage_ = [&] {
        EXPECT_EQ(caretShown, 2);
        EXPECT_EQ(grid.HeaderText(), u"Codes  (A)");
        grid.FocusBox(Focus::Entered);
        EXPECT_TRUE(grid.ValidateBox());
    };
    grid.ReleaseComma();
    EXPECT_EQ(Told(), Texts{u"'x' is not a valid entry."});
}

TEST_F(SelectGridTest, MovesFromCodeToCode) {
    // Entries 2 to 24 have codes but for 5 and 14; the last is the empty piece 25.
    std::u16string values = NumberedCodes(23);
    for (const TextIn code : {u"C5\t", u"C14\t"}) {
        values.replace(values.find(code), code.size(), u"\t");
    }
    const struct {
        int from;
        Key key;
        int bands, to;
    } rows[] = {
        {4, Key::Right, 1, 6},      {6, Key::Left, 1, 4},    {10, Key::Right, 1, 11},
        {11, Key::Left, 1, 10},     {1, Key::Left, 1, 1},    {24, Key::Right, 1, 24},
        {3, Key::Down, 1, 13},      {4, Key::Down, 1, 15},   {17, Key::Down, 1, 24},
        {23, Key::Down, 1, 23},     {24, Key::Up, 1, 13},    {8, Key::Up, 1, 8},
        {3, Key::PageDown, 9, 23},  {24, Key::PageUp, 2, 4}, {24, Key::PageUp, 9, 4},
        {22, Key::PageUp, -3, 12},  {13, Key::Home, 1, 1},   {13, Key::End, 1, 24},
        {24, Key::PageDown, 1, 24},
    };
    for (const auto& row : rows) {
        SelectGrid& grid = Open(values);
        const CellPlace from = SelectGrid::PlaceOf(row.from);
        if (row.from > 1) grid.ClickCell(from.row, from.column);
        const std::u16string box = grid.Box().text;
        grid.KeyDown(row.key, row.bands);
        EXPECT_EQ(grid.CurrentEntry(), row.to) << row.from << " key " << static_cast<int>(row.key);
        EXPECT_EQ(grid.Box().text, box);
    }
}

TEST_F(SelectGridTest, TypedLettersFindCodesAndDescriptions) {
    SelectGrid& grid = Open(u"H:ab\tOne\t0:AC\tTwo\t0:\tAlone\t0:x\t\u00C9col\t0:aa1\t*\t0:", u"x");
    const struct {
        char16_t letter;
        bool continues;
        int entry;
    } rows[] = {{u'a', false, 2}, {u'c', true, 3},       {u'a', false, 6}, {u'a', false, 2},
                {u't', false, 3}, {u'\u00E9', false, 5}, {u'q', false, 5}, {u'a', false, 6},
                {u'a', true, 6},  {u'a', true, 2},       {u' ', false, 2}, {u'*', false, 6},
                {u'*', false, 1}};
    for (const auto& row : rows) {
        grid.TypeLetter(row.letter, row.continues);
        EXPECT_EQ(grid.CurrentEntry(), row.entry) << &row - rows;
    }
    EXPECT_EQ(grid.Box().text, u"x");
    grid.Accept();
    EXPECT_EQ(grid.ReturnValue(), u"CANCEL");
}

TEST_F(SelectGridTest, LogsAFaultAndStaysUsable) {
    onMessage_ = [] { throw std::bad_alloc(); };
    SelectGrid& grid = Open(kCodes);
    Type(u"x");
    EXPECT_FALSE(grid.ValidateBox());
    EXPECT_TRUE(ReadFile(machine_.ownFolder / "Error.Log")
                    .ends_with("ERR in frmSelectGrid.FindOneItem: Out of memory\r\n"));
    Type(u"A");
    grid.Accept();
    EXPECT_EQ(grid.ReturnValue(), u"A");
}

/// The same rules as plain scans over every entry and piece.
class PlainGrid {
  public:
    PlainGrid(const std::vector<std::u16string>& codes) : codes_(codes) {
        shown_ = std::min(codes_.size(), (codes_.size() - 1 + 9) / 10 * 10);
        marks_.assign(codes_.size() + 1, false);
    }

    void Toggle(std::size_t entry) {
        const bool on = !marks_[entry];
        marks_[entry] = on;
        Texts pieces = Pieces(box_);
        if (entry == 1) {
            pieces.clear();
            for (std::size_t i = 1; i <= shown_; ++i) {
                marks_[i] = on;
                if (on && !Trimmed(codes_[i - 1]).empty()) pieces.push_back(codes_[i - 1]);
            }
        } else if (on) {
            pieces.push_back(codes_[entry - 1]);
        } else {
            std::erase(pieces, codes_[entry - 1]);
        }
        const bool emptied = pieces.empty() && !box_.empty();
        choice_ = box_ = Joined(pieces);
        if (emptied) marks_.assign(marks_.size(), false);
    }

    void Check(const std::u16string& text) {
        box_ = text;
        marks_.assign(marks_.size(), false);
        choice_.clear();
        Texts accepted;
        const Texts pieces = Pieces(text);
        for (const auto& piece : pieces) {
            std::size_t entry = 1;
            while (entry <= shown_ && Trimmed(codes_[entry - 1]) != piece) ++entry;
            if (entry > shown_) {
                told_.push_back(u"'" + piece + u"' is not a valid entry.");
                break;
            }
            if (!marks_[entry]) accepted.push_back(piece);
            marks_[entry] = true;
        }
        choice_ = Joined(accepted);
        if (told_.empty() && accepted != pieces) told_.push_back(u"Duplicates are not allowed!");
    }

    std::u16string State() {
        std::u16string state = box_ + u"|" + choice_;
        for (std::size_t i = 1; i <= shown_; ++i) {
            const bool ticks = i == 1 || !Trimmed(codes_[i - 1]).empty();
            state += marks_[i] && ticks ? u'x' : u'-';
        }
        for (const auto& text : told_) state += text;
        told_.clear();
        return state;
    }

    std::size_t Shown() const { return shown_; }

  private:
    static Texts Pieces(const std::u16string& text) {
        Texts pieces(1);
        for (const char16_t character : text) {
            if (character == u',')
                pieces.emplace_back();
            else
                pieces.back() += character;
        }
        for (auto& piece : pieces) piece = Trimmed(piece);
        std::erase(pieces, u"");
        return pieces;
    }
    static std::u16string Joined(const Texts& pieces) {
        std::u16string text;
        for (const auto& piece : pieces) text += (text.empty() ? u"" : u",") + piece;
        return text;
    }

    Texts codes_;
    std::size_t shown_;
    std::vector<bool> marks_;
    std::u16string box_, choice_;
    Texts told_;
};

TEST_F(SelectGridTest, AgreesWithPlainScansOnRandomLists) {
    std::mt19937 random(3);
    const Texts alphabet = {u"A", u"B", u"a", u"A1", u"", u"B2", u"C", u"DD", u"x-y", u"9"};
    for (int round = 0; round < 400; ++round) {
        Texts codes = {u" "};
        std::u16string values = u"H";
        for (std::size_t i = random() % 35; i > 0; --i) {
            codes.push_back(alphabet[random() % alphabet.size()]);
            values += u":" + codes.back() + u"\td\t0";
        }
        PlainGrid plain(codes);
        SelectGrid& grid = Open(values);
        for (int step = 0; step < 12 && plain.Shown() > 0; ++step) {
            const std::size_t entry = 1 + random() % plain.Shown();
            if (random() % 3 > 0) {
                if (entry > 1 && codes[entry - 1].empty()) continue;
                const CellPlace cell = SelectGrid::PlaceOf(static_cast<std::int32_t>(entry));
                grid.ClickCell(cell.row + static_cast<int>(random() % 3), cell.column);
                plain.Toggle(entry);
            } else {
                std::u16string text = alphabet[random() % 4];
                for (std::size_t i = random() % 4; i > 0; --i) {
                    text += u", " + alphabet[random() % alphabet.size()];
                }
                Type(text);
                grid.ReleaseComma();
                plain.Check(text);
            }
            std::u16string state = grid.Box().text + u"|" + grid.ReturnValue();
            for (std::size_t i = 1; i <= plain.Shown(); ++i) {
                const CellPlace cell = SelectGrid::PlaceOf(static_cast<std::int32_t>(i));
                state += grid.Cell(cell.row, cell.column).checked ? u'x' : u'-';
            }
            for (const auto& text : Told()) state += text;
            ASSERT_EQ(ToUtf8(state), ToUtf8(plain.State())) << ToUtf8(values);
        }
    }
}

TEST_F(SelectGridTest, HandlesAHospitalsLargestList) {
    std::u16string selected;
    for (int i = 10; i < 100'000; i += 10) {
        selected.append(u"C").append(IntegerText(i)).append(u", ");
    }
    SelectGrid& grid = Open(NumberedCodes(100'000), selected);
    EXPECT_EQ(Told(), Texts());
    const std::u16string before = grid.Box().text;
    EXPECT_EQ(before.size(), selected.size() - 10'000);
    for (int i = 0; i < 2'000; ++i) grid.KeyDown(Key::Right), grid.KeyDown(Key::Space);
    for (int i = 0; i < 2'000; ++i) grid.KeyDown(Key::Space), grid.KeyDown(Key::Left);
    EXPECT_EQ(grid.Box().text.size(), before.size());
    grid.ReleaseComma();
    grid.Accept();
    EXPECT_EQ(Told(), Texts());
    EXPECT_EQ(grid.ReturnValue().size(), before.size());
    Open(std::u16string(1'000'000, u':'), u"").ClickCell(1, 1);
    grid_->KeyDown(Key::End);
    EXPECT_EQ(grid_->CurrentEntry(), 1);
}

}  // namespace
}  // namespace halvek
