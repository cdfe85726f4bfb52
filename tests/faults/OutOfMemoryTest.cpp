// SPDX-License-Identifier: MIT
#include "tests/CleanState.h"
#include "tests/FakeServices.h"
#include "tests/HelpFile.h"
#include "tests/faults/FailingAllocations.h"

#include <halvekutils/base/KeyedCollection.h>
#include <halvekutils/base/NumericText.h>
#include <halvekutils/base/ObjectStore.h>
#include <halvekutils/base/Pieces.h>
#include <halvekutils/base/Utf8.h>
#include <halvekutils/core/DebugConsole.h>
#include <halvekutils/help/CompiledHelp.h>
#include <halvekutils/help/HelpText.h>
#include <halvekutils/platform/TextField.h>
#include <halvekutils/prefs/OpenWindows.h>
#include <halvekutils/prefs/ReminderDefinition.h>
#include <halvekutils/prefs/UserPrefs.h>
#include <halvekutils/refdata/CodesCollection.h>
#include <halvekutils/refdata/PrintersCollection.h>
#include <halvekutils/selection/SelectGrid.h>

#include <algorithm>
#include <ostream>

namespace halvek {
namespace {

using Text = std::u16string;

constexpr char16_t kWords[] = u"the first of them|the second one|and a last one";
constexpr char16_t kCodes[] =
    u"Insurance companiesæINSURANCEæ1æ1æReport oneæSort|Providers of careæPROVIDERSæ0æ1ææ|";
constexpr char16_t kList[] = u"H:A000001\tAlpha\t0:B000002\tBeta\t0:C000003\tGamma\t0:";

std::unique_ptr<SelectGrid> OpenGrid(TextIn typed) {
    SelectionRequest request{u"Codes", kList, u"A000001"};
    auto grid = std::make_unique<SelectGrid>(std::move(request), Services::Current(), nullptr);
    grid->Prepare();
    if (!typed.empty()) grid->EditBox(typed, 0);
    return grid;
}

/// A session for one attempt, set up from scratch.
struct World : CleanState {
    World() {
        utils->InitUtils(FromUtf8(log.native()), u"Front Desk", u"", true, u"");
        utils->SpecialMode(u"printerlistnew");
        desktop_.SetPrinterConnections({{{u"ipp://one", u"Upstairs laser"}}});
        utils->InitPrefs(StringArray(1, {u"16711680", u"255", u"0", u"0", u"0"}), 0, 0, 0, 0);
        utils->BuildCodesCollection(u"An earlier oneæEARLIERæ1æ1ææ");
        utils->BuildSecurityCollection(u"***");
        full = utils->GetSecurityItemsCollection();
        utils->BuildSecurityCollection(u"PATIENTS8");
        utils->BuildPrintersCollection(u"S:0:Spool queue:LPT1\t7:0:Label printer:COM2");
        utils->AddBin(u"Key", u"what stood before", u"a type before");
        utils->ShowInDebug(u"the line before");
        prefs.PopulateSettings(u"settings that stood beforeß|and another oneß7ß8");
        reminder.PopulateReminder(u"an account", u"Balances dueæp-of this patientæa second line");
        for (int i = 0; i < 64; ++i) keyed.Add(store.Make(), u"key number " + IntegerText(i));
        windows = utils->OpenWindows();
        grid = OpenGrid({});
        typedGrid = OpenGrid(u"B000002,C000003");
        calculator.Operate(u'+');
        calculator.Press(1);
        for (int i = 0; i < 2; ++i) {
            desktop_.OnMessageBox([](MessageBox& box) { box.Press(0); });
            desktop_.OnCalculator([](Calculator& keys) { keys.Press(Calculator::kReturn); });
            desktop_.OnCalendar([](Calendar& days) { days.ClickDay(days.Today()); });
            desktop_.OnColorPalette([](ColorPalette& palette) { palette.Click(1); });
            desktop_.OnSelection([](SelectGrid& codes) {
                codes.ClickCell(1, 3);
                codes.ClickHeader();
            });
        }
    }
    void TestBody() override {}

    using CleanState::desktop_;
    using CleanState::machine_;
    const std::filesystem::path log = folder_ / "host.log";
    const std::shared_ptr<Utils> utils = Utils::Create();
    Text result;  ///< of the call
    StringArray lines, array{0, {u"before"}};
    std::shared_ptr<PrintersCollection> printers;
    std::shared_ptr<SecurityItemsCollection> full;  ///< of an earlier build, with full access
    std::shared_ptr<OpenWindows> windows;
    UserPrefs prefs;
    ReminderDefinition reminder, newReminder;
    KeyedCollection<Text> keyed;
    ObjectStore<Text> store;
    const std::shared_ptr<TextControl> field = std::make_shared<TextField>(u"$1,234,567.899");
    FakeServices session;
    Calculator calculator{u"123456789", session, desktop_};
    std::unique_ptr<SelectGrid> grid, typedGrid;
    std::unique_ptr<CompiledHelp> help;
};

template <class Collection, class Show>
Text Lines(const std::shared_ptr<Collection>& collection, const Show& show) {
    Text lines;
    if (collection == nullptr) return lines;
    for (const auto& item : collection) lines += std::invoke(show, *item) + u'\n';
    return lines;
}
Text Lines(const StringArray& array) {
    Text lines;
    for (const Text& line : array) lines += line + u'\n';
    return lines;
}

Text ShowRight(const SecurityItem& item) {
    return item.ItemKey() + (item.AllowRead() ? u"=read" : u"");
}
Text Show(const SelectGrid& grid) {
    Text shown = grid.HeaderText() + grid.Box().text;
    for (std::int32_t i = 1; i <= 4; ++i) shown += grid.Cell(1, i).checked ? u'x' : u'-';
    return shown + (grid.IsOpen() ? u"" : grid.Result());
}
/// The line of these words and what follows it; nothing where it is missing.
Text FromTheLine(const Text& text) {
    return text.substr(std::min(text.find(Text(kWords) + u"\r\n"), text.size()));
}

/// Everything that a call may change, line by line.
Text Show(World& w) {
    const Utils& utils = *w.utils;
    Text shown = Lines(utils.GetCodesCollection(), &CodeDefinition::CodeKey) +
                 Lines(utils.GetSecurityItemsCollection(), ShowRight) +
                 Lines(utils.GetPrintersCollection(), &PrinterDefinition::PrinterDescription) +
                 Lines(w.printers, &PrinterDefinition::PrinterDescription) +
                 Lines(TheSession().colorArray) + Lines(w.newReminder.Tabs()) +
                 Lines(w.newReminder.TabData(1)) + Lines(w.lines) + Lines(w.array) +
                 Lines(w.windows->GetItem(w.windows->Count()));
    for (const Text& text :
         {ShowRight(*w.full->Item(u"/of an earlier collection")), w.result, utils.AppName(),
          utils.ExeFileStamp(), IntegerText(utils.FormSkinColor()), utils.GetBinData(u"Key"),
          utils.GetBinData(u"A new bin"), w.prefs.GetSettingsString(),
          utils.GetCurrentUserPrefs()->GetSettingsString(), w.newReminder.AcctNo(),
          w.calculator.Display() + w.calculator.LastOperator(), Show(*w.grid), Show(*w.typedGrid),
          w.field->Text() + u'/' + IntegerText(w.field->SelLength()),
          IntegerText(w.keyed.Count()) + (w.keyed.Find(u"a key that is new") ? u"!" : u""),
          FromTheLine(w.desktop_.Console()->Text()), FromTheLine(FromUtf8(ReadFile(w.log))),
          FromUtf8(ReadFile(w.machine_.ownFolder / "DEBUG.log"))}) {
        shown += text + u'\n';
    }
    return shown;
}

/// How the host learns of the failure: by fault 7, by a line in the error log, by either, or not at
/// all.
enum class Told { Raised, Logged, Either, Nobody };
/// What the call leaves: everything as it was, or only lines of the finished state.
enum class Left { Before, Part };

struct Row {
    const char* name;
    Told told;
    void (*act)(World& w);
    Left left = Left::Before;
};

void PrintTo(const Row& row, std::ostream* out) {
    *out << row.name;
}

using enum Told;
using enum Left;

const Row kRows[] = {
    {"BuildCodesCollection", Logged, [](World& w) { w.utils->BuildCodesCollection(kCodes); }, Part},
    {"BuildSecurityCollection", Logged,
     [](World& w) { w.utils->BuildSecurityCollection(u"REPORTS AND LISTS8æBILLS4"); }, Part},
    {"BuildSecurityCollectionAfterFullAccess", Either,
     [](World& w) {
         w.utils->BuildSecurityCollection(u"***");
         w.utils->BuildSecurityCollection(u"REPORTS AND LISTS8æBILLS4");
     },
     Part},
    {"SecurityItem", Raised,
     [](World& w) { w.utils->GetSecurityItemsCollection()->Item(u"A MISSING ITEM"); }},
    {"BuildPrintersCollection", Logged,
     [](World& w) {
         w.utils->ClearPrintersCollection();
         w.utils->BuildPrintersCollection(u"9:0:Export to disk:FILE\t8:0:Another printer:COM2");
     },
     Part},
    {"GetPrintersCollectionFiltered", Logged,
     [](World& w) { w.printers = w.utils->GetPrintersCollectionFiltered(); }},
    {"InitUtils", Raised,
     [](World& w) { w.utils->InitUtils(TheSession().errFileName, kWords, kWords, true, kWords); }},
    {"InitPrefs", Raised,
     [](World& w) {
         w.utils->InitPrefs(StringArray(1, {kWords, u"2"}), 5, 6, 7, 8);
     }},
    {"AddBin", Logged, [](World& w) { w.utils->AddBin(u"A new bin", kWords, kWords); }},
    {"AddBinAgain", Logged, [](World& w) { w.utils->AddBin(u"Key", kWords, kWords); }},
    {"GetBinData", Raised, [](World& w) { w.result = w.utils->GetBinData(u"Key"); }},
    {"PopulateSettings", Raised,
     [](World& w) { w.prefs.PopulateSettings(u"a long form textß|for another screenß1ß2"); }},
    {"SetCurrentUserPrefs", Raised, [](World& w) { w.utils->SetCurrentUserPrefs(w.prefs); }},
    {"OpenWindowsAddItem", Logged,
     [](World& w) { w.windows->AddItem(u"a patient's window", 1234567890); }},
    {"PopulateReminder", Nobody,
     [](World& w) { w.newReminder.PopulateReminder(u"an account", u"Balances dueæp-of this one"); },
     Part},
    {"TabData", Nobody, [](World& w) { w.lines = w.reminder.TabData(1); }},
    {"SplitStr", Nobody, [](World& w) { w.result = w.utils->SplitStr(kWords, u"|", 2); }},
    {"StrToArr", Nobody, [](World& w) { w.utils->StrToArr(kWords, u"|", w.array); }},
    {"ChunkStrToArr", Logged, [](World& w) { w.utils->ChunkStrToArr(kWords, w.array, 20, u"|"); }},
    {"SplitLeftRight", Logged,
     [](World& w) { w.utils->SplitLeftRight(kWords, u"|", w.result, w.array[0]); }},
    {"RemoveUnwantedChars", Raised,
     [](World& w) {
         w.utils->RemoveUnwantedChars(u"unwanted| bars| go from this", w.result, u"-");
     },
     Part},
    {"ConvertHDate", Logged, [](World& w) { w.result = w.utils->ConvertHDate(u"60000,43200"); }},
    {"ShowMsgBox", Logged,
     [](World& w) {
         const auto answer = w.utils->ShowMsgBox(kWords, mbYesNo, mbQuestion, kWords);
         if (answer != kNotAnswered) w.result = u"yes";
     }},
    {"Calculate", Logged, [](World& w) { w.result = w.utils->Calculate(u"1234567.25"); }},
    {"CalculatorOperate", Raised, [](World& w) { w.calculator.Operate(u'*'); }},
    {"ShowCalendar", Logged,
     [](World& w) { w.result = w.utils->ShowCalendar(-1, -1, -1, u"March 7, 2004"); }},
    {"ShowColor", Logged, [](World& w) { w.result = w.utils->ShowColor(-1, -1, -1); }},
    {"ShowSelectionGrid", Logged,
     [](World& w) {
         Text codes = w.utils->ShowSelectionGrid(u"Codes", kList, u"A000001");
         // If the click itself fails, the host gets its own selection or no change.
         if (codes != u"CANCEL" && codes != u"A000001") w.result = std::move(codes);
     }},
    {"SelectGridTick", Logged, [](World& w) { w.grid->ClickCell(1, 3); }},
    {"SelectGridTypedCodes", Either, [](World& w) { w.typedGrid->Accept(); }},
    {"OnCurrencyCtrChange", Logged, [](World& w) { w.utils->OnCurrencyCtrChange(w.field); }},
    {"OnCurrencyCtrValidate", Logged,
     [](World& w) {
         bool cancel = false;
         w.utils->OnCurrencyCtrValidate(w.field, cancel);
     }},
    {"HelpOpens", Raised,
     [](World& w) { w.result = CompiledHelp(HelpFile::Shared().Path()).Title(); }},
    {"HelpReads", Raised,
     [](World& w) {
         if (w.help == nullptr) w.help = std::make_unique<CompiledHelp>(HelpFile::Shared().Path());
         w.result = HelpTextOf(w.help->Read(u"/first.htm"));
     }},
    {"ShowInDebug", Logged, [](World& w) { w.utils->ShowInDebug(kWords); }},
    {"SaveToFile", Nobody, [](World& w) { w.desktop_.Console()->SaveToFile(); }},
    {"LogError", Nobody, [](World& w) { w.utils->LogError(kWords); }},
    {"KeyedCollection", Raised,
     [](World& w) { w.keyed.Add(w.store.Make(), u"a key that is new"); }},
};

/// True when each line of the first text is one of the second's, in its order.
bool IsPartOf(const Text& part, const Text& whole) {
    std::size_t at = 0;
    for (const TextIn line : Pieces(part, u'\n')) {
        at = whole.find(line, at);
        if (at == Text::npos) return false;
        at += line.size();
    }
    return true;
}

struct OutOfMemory : ::testing::TestWithParam<Row> {
    void SetUp() override {
        World w;
        const Text before = Show(w);
        row_.act(w);
        finished_ = Show(w);
        ASSERT_NE(before, finished_);
    }

    /// Tries the call without its n-th allocation; false when it has no more than n.
    bool Try(int n, Memory memory) const {
        World w;
        const Text before = Show(w);
        bool raised = false;
        try {
            const FailingAllocations failing(n, memory);
            row_.act(w);
        } catch (const std::exception& caught) {
            raised = AsRuntimeError(caught).Code() == Fault::OutOfMemory;
        }
        const bool hasFailed = FailingAllocations::HaveFailed();
        const std::string log = ReadFile(w.log);
        const Text after = Show(w);
        EXPECT_TRUE(log == "(missing)" || log.ends_with("\r\n")) << log;
        if (raised || after != finished_) {
            const bool kept = row_.left == Part ? IsPartOf(after, finished_) : after == before;
            EXPECT_TRUE(kept) << ToUtf8(after) << "\ninstead of\n" << ToUtf8(before);
            EXPECT_TRUE(row_.told == Either || raised == (row_.told == Raised));
            // Without any memory the line cannot be written either.
            const bool logged = log.find("Out of memory") != log.npos;
            EXPECT_TRUE(memory == Memory::Exhausted || (raised || logged) == (row_.told != Nobody));
        }
        if (!hasFailed) return false;
        row_.act(w);
        EXPECT_EQ(ToUtf8(Show(w)), ToUtf8(finished_)) << "a later call";
        return true;
    }

    const Row& row_ = GetParam();
    Text finished_;
};

TEST_P(OutOfMemory, KeepsWhatStoodBeforeAndTells) {
    int points = 0;
    for (const Memory memory : {Memory::MissingOnce, Memory::Exhausted}) {
        for (int n = 0; Try(n, memory); ++n, ++points) {
            ASSERT_FALSE(HasFailure()) << "without allocation " << n;
        }
    }
    EXPECT_GT(points, 0);
    RecordProperty("points", points);
}

INSTANTIATE_TEST_SUITE_P(Calls, OutOfMemory, ::testing::ValuesIn(kRows),
                         [](const auto& row) { return row.param.name; });

}  // namespace
}  // namespace halvek
