// SPDX-License-Identifier: MIT
#include "tests/CleanState.h"

#include <halvekutils/base/Utf8.h>
#include <halvekutils/refdata/PrintersCollection.h>

#include <algorithm>
#include <tuple>

namespace halvek {
namespace {

/// "identifier/type/description/port/device/driver", "serial " in front for the serial list's.
std::string Shown(const PrinterDefinition& printer) {
    EXPECT_EQ(printer.NumberInOrder(), 0);
    return ToUtf8((printer.IsSerial() ? u"serial " : u"") + printer.PrinterID() + u'/' +
                  printer.PrinterType() + u'/' + printer.PrinterDescription() + u'/' +
                  printer.PrinterPort() + u'/' + printer.PrinterDeviceName() + u'/' +
                  printer.PrinterDriverName());
}

/// The identifiers of all printers, each of which must be found by its number's key.
std::string Identifiers(const std::shared_ptr<const PrintersCollection>& printers, int number) {
    std::string identifiers;
    for (const auto& printer : printers) {
        EXPECT_EQ(printers->Item(FromUtf8(std::to_string(number++) + "Key")), printer);
        identifiers += ToUtf8(printer->PrinterID()) + ' ';
    }
    return identifiers;
}

std::vector<InstalledPrinter> Installed(int count) {
    std::vector<InstalledPrinter> printers;
    for (int i = 1; i <= count; ++i) {
        printers.push_back({u"Queue", u"socket", u"Driver" + FromUtf8(std::to_string(i))});
    }
    return printers;
}

class PrintersCollectionTest : public CleanState {
  protected:
    std::shared_ptr<PrintersCollection> Build(TextIn serialList, TextIn specialMode = {}) {
        utils_->SpecialMode(specialMode);
        utils_->BuildPrintersCollection(serialList);
        return utils_->GetPrintersCollection();
    }

    /// The messages that were logged since the last call, each ended by "|".
    std::string NewMessages() {
        const std::string log = Log();
        std::string messages;
        for (std::size_t at = logged_; (at = log.find("\tnina\t", at)) != std::string::npos;) {
            at += 6;
            messages += log.substr(at, log.find("\r\n", at) - at) + '|';
        }
        logged_ = log == "(missing)" ? 0 : log.size();
        return messages;
    }

  private:
    std::size_t logged_ = 0;
};

// ServerTextsFuzz has the plain rules of the list and its filter.

TEST_F(PrintersCollectionTest, AHostLeavesOutOneKindAfterTheOther) {
    desktop_.SetPrinterConnections({{{u"ipp://lab/1", u"Lab"}}});
    const auto printers = Build(u"S:0:Spool:LPT1\t7:0:Labels:COM2\t9:0:Export:FILE\tx::a b:file");
    EXPECT_EQ(Identifiers(printers, 0), "S 7 9 x 1WIN ");
    const auto filtered = [&](auto... excluded) {
        return Identifiers(utils_->GetPrintersCollectionFiltered(excluded...), 1);
    };
    EXPECT_EQ(filtered(), "7 9 x 1WIN ");
    EXPECT_EQ(filtered(false, true), "S 7 x 1WIN ");
    EXPECT_EQ(filtered(false, false, true), "S 7 9 x ");
    EXPECT_EQ(filtered(false, false, false, true), "S 9 1WIN ");
}

TEST_F(PrintersCollectionTest, SkipsBadEntriesWithTheirPosition) {
    const std::string bad = "BuildPrintersCollection error; format is invalid for item ";
    const std::tuple<std::u16string, std::string, std::string> rows[] = {
        {u"\t\tno fields\ta:0:b:c:\tk:0:y:z", "k ", bad + "2 no fields|" + bad + "3 a:0:b:c:|"},
        {u" :0:a:b\t:", "  ", bad + "1 :|"},
        {std::u16string(1'000'000, u'\t') + u"k:0:y:z", "k ", ""},
    };
    for (const auto& [list, identifiers, messages] : rows) {
        utils_->ClearPrintersCollection();
        const int beeps = desktop_.Beeps();
        EXPECT_EQ(Identifiers(Build(list), 0), identifiers);
        EXPECT_EQ(NewMessages(), messages);
        EXPECT_EQ(desktop_.Beeps() - beeps, std::ranges::count(messages, '|'));
    }
}

TEST_F(PrintersCollectionTest, TheSpecialModeChoosesTheWorkstationsSource) {
    const std::string failed = "AddWindowsPrintersWSH Device error: scripted printers|";
    const std::string oldWay = "Adding Printers the old way 100 max. Total count: ";
    const std::string limited = "Printers list over MaxNoToLoad, limiting to MaxNoToLoad 100|";
    const struct {
        std::u16string specialMode;
        bool answers;
        int installed, count, beeps;
        std::string last, messages;
    } rows[] = {
        {u"", true, 3, 2, 0, "2WIN/WIN/B/p2/B/", ""},
        {u"", false, 120, 100, 2, "100WIN/WIN/Queue/socket/Queue/Driver100",
         failed + oldWay + "120|" + limited},
        {u"a printerlistnew b", false, 3, 0, 0, "serial s/SERIAL/x/y//", failed},
        {u"xPRINTERLISTOLDx", true, 100, 100, 0, "100WIN/WIN/Queue/socket/Queue/Driver100", ""},
        {u"printerlistold", false, 101, 100, 1, "100WIN/WIN/Queue/socket/Queue/Driver100", limited},
        {u"printerlistnew printerlistold", true, 1, 1, 0, "1WIN/WIN/Queue/socket/Queue/Driver1",
         ""},
        {u"printer list old", true, 3, 2, 0, "2WIN/WIN/B/p2/B/", ""},
    };
    for (const auto& row : rows) {
        const std::vector<PrinterConnection> answer = {{u"p1", u"A"}, {u"p2", u"B"}};
        desktop_.SetPrinterConnections(row.answers ? std::optional(answer) : std::nullopt);
        desktop_.SetInstalledPrinters(Installed(row.installed));
        utils_->ClearPrintersCollection();
        const int beeps = desktop_.Beeps();
        const auto printers = Build(u"s:0:x:y", row.specialMode);
        EXPECT_EQ(NewMessages(), row.messages) << ToUtf8(row.specialMode);
        EXPECT_EQ(desktop_.Beeps() - beeps, row.beeps);
        ASSERT_EQ(printers->Count(), 1 + row.count);
        EXPECT_EQ(Shown(*printers->Item(1 + row.count)), row.last);
    }
}

TEST_F(PrintersCollectionTest, ASecondBuildWithoutClearFailsAtTheFirstTakenKey) {
    const std::string taken = "Key already in the collection: ";
    const std::pair<TextIn, std::string> rows[] = {
        {u"b:0:x:y", "BuildPrintersCollection " + taken + "0KEY|"},
        {u"", "AddWindowsPrintersWSH " + taken + "0KEY|" +
                  "Adding Printers the old way 100 max. Total count: 2|AddWindowsPrintersOldWay " +
                  taken + "1KEY|"},
    };
    desktop_.SetPrinterConnections({{{u"p", u"A"}}});
    desktop_.SetInstalledPrinters(Installed(2));
    const auto printers = Build(u"a:0:x:y");
    for (const auto& [second, messages] : rows) {
        EXPECT_EQ(Build(second), printers);
        EXPECT_EQ(NewMessages(), messages);
        EXPECT_EQ(Identifiers(printers, 0), "a 1WIN ");
    }
    utils_->ClearPrintersCollection();
    Build(u"");
    EXPECT_EQ(Identifiers(Build(u""), 0), "1WIN 1WIN 2WIN ")
        << "with one key taken, the fall-back counts on behind it to the end of its list";
}

TEST_F(PrintersCollectionTest, ADesktopWithoutPrintersFailsItsConnectionsAndListsNone) {
    struct Printerless : ScriptedPlatform {
        std::unique_ptr<PrinterSource> Printers() override { return nullptr; }
    } desktop;
    EXPECT_EQ(Identifiers(Build(u"a:0:x:y"), 0), "a ");
    EXPECT_EQ(NewMessages(),
              "AddWindowsPrintersWSH Object not set: printer source|"
              "Adding Printers the old way 100 max. Total count: 0|");
}

}  // namespace
}  // namespace halvek
