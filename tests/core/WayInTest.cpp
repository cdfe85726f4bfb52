// SPDX-License-Identifier: MIT
#include "tests/CleanState.h"
#include "tests/HostWindow.h"

#include <halvekutils/base/RuntimeError.h>
#include <halvekutils/platform/TextField.h>

#include <thread>

namespace halvek {
namespace {

/// A button that was destroyed.
class Gone : public PopupTarget {
  public:
    Rect Place() const override { throw RuntimeError(Fault::ObjectNotSet, u"control"); }
    Rect Screen() const override { return {}; }
    bool Exists() const override { return false; }
};

/// A desktop on which the host acts while a message about a log that fails is open.
class ActingDesktop : public ScriptedPlatform {
  public:
    void ShowStockMessage(TextIn text, StockIcon icon, TextIn title) override {
        ScriptedPlatform::ShowStockMessage(text, icon, title);
        act();
    }

    std::function<void()> act = [] {};
};

/// What a host passes to a member, and may release while a window is open.
struct Passed {
    std::shared_ptr<Utils> utils = Utils::Create();
    std::unique_ptr<std::u16string> text;
    std::shared_ptr<PopupTarget> target = std::make_shared<Gone>();
    std::shared_ptr<OwnerForm> form = std::make_shared<HostWindow>();
    std::unique_ptr<std::u16string> variable = std::make_unique<std::u16string>(300, u'v');
};

/// A call that opens a window, if only because its fault cannot be logged.
struct Call {
    const char* member;
    std::u16string_view text;
    std::function<void(Utils&, Passed&)> make;
};

std::vector<Call> Calls() {
    return {
        {"ShowColorAndCalculateCoordinates", u"",
         [](Utils& u, Passed& p) { u.ShowColorAndCalculateCoordinates(p.target, p.form); }},
        {"ShowCalendarAndCalculateCoordinates", u"3/7/2024 and more than fits into a string",
         [](Utils& u, Passed& p) {
             u.ShowCalendarAndCalculateCoordinates(p.target, *p.text, *p.text, p.form);
         }},
        {"ShowSelectionGridAndCalculateCoordinates", u"H:A\tAlpha\t0:B\tBeta of twenty letters\t0:",
         [](Utils& u, Passed& p) {
             u.ShowSelectionGridAndCalculateCoordinates(*p.text, *p.text, *p.text, p.target, p.form,
                                                        *p.variable);
         }},
        {"CalculateCellCoordinates", u"",
         [](Utils& u, Passed& p) {
             float left = 0, up = 0, down = 0;
             u.CalculateCellCoordinates(p.target, left, up, down);
             EXPECT_EQ(left + up + down, -3);
         }},
        {"ShowColor", u"", [](Utils& u, Passed& p) { u.ShowColor(-1, -1, -1, p.form); }},
        {"ShowCalendar", u"3/7/2024",
         [](Utils& u, Passed& p) { u.ShowCalendar(-1, -1, -1, *p.text, *p.text, p.form); }},
        {"ShowSelectionGrid", u"H:A\tAlpha\t0:B\tBeta of twenty letters\t0:",
         [](Utils& u, Passed& p) {
             u.ShowSelectionGrid(*p.text, *p.text, *p.text, -1, -1, -1, p.form, *p.variable);
         }},
        {"ShowMsgBox", u"a text of more than twenty letters",
         [](Utils& u, Passed& p) {
             EXPECT_EQ(u.ShowMsgBox(*p.text, mbYesNo, mbQuestion, *p.text), kNotAnswered);
         }},
        {"Calculate", u"12.50", [](Utils& u, Passed& p) { u.Calculate(*p.text); }},
        {"ShowHelp", u"/no such folder of help/desk.chm",
         [](Utils& u, Passed& p) { EXPECT_FALSE(u.ShowHelp(0, 1, *p.text)); }},
        {"ShowHelpByTopic", u"/no such folder of help/desk.chm",
         [](Utils& u, Passed& p) { EXPECT_FALSE(u.ShowHelpByTopic(0, *p.text, *p.text)); }},
        {"HighlightHeading", u"", [](Utils& u, Passed&) { u.HighlightHeading(nullptr); }},
        {"UnhighlightHeading", u"", [](Utils& u, Passed&) { u.UnhighlightHeading(nullptr); }},
        {"FindInCombo", u"Adams",
         [](Utils& u, Passed& p) { u.FindInCombo(nullptr, *p.text, true, true, true); }},
        {"FillCombo", u"Adams:Baker",
         [](Utils& u, Passed& p) { EXPECT_FALSE(u.FillCombo(*p.text, nullptr)); }},
        {"SetFontProperties", u"Tahoma",
         [](Utils& u, Passed& p) { EXPECT_FALSE(u.SetFontProperties(nullptr, *p.text)); }},
        {"GridSetFontObject", u"1",
         [](Utils& u, Passed& p) { u.GridSetFontObject(nullptr, *p.text); }},
        {"BuildCodesCollection", u"OneæKæ1æ1ææ|Two, with the same keyæKæ1æ1ææ|LastæLæ1æ1ææ",
         [](Utils& u, Passed& p) { u.BuildCodesCollection(*p.text); }},
        {"BuildSecurityCollection", u"PATIENTSFæpatients8æREPORTS AND LABELSC",
         [](Utils& u, Passed& p) { u.BuildSecurityCollection(*p.text); }},
        {"BuildPrintersCollection", u"7:0:Label printer:COM2\tno fields\t8:0:Cards:COM3",
         [](Utils& u, Passed& p) { u.BuildPrintersCollection(*p.text); }},
        {"AddBin", u"A KEY of more than twenty letters",
         [](Utils& u, Passed& p) {
             u.AddBin(u"a key of more than twenty letters", u"", u"");
             u.AddBin(*p.text, *p.text, *p.text);
         }},
        {"OnCurrencyCtrChange", u"", [](Utils& u, Passed&) { u.OnCurrencyCtrChange(nullptr); }},
        {"ConvertHDate", u"9999999999", [](Utils& u, Passed& p) { u.ConvertHDate(*p.text); }},
    };
}

using WayIn = CleanState;

// Found by the sanitizers if a member works on what the host has released
TEST_F(WayIn, TheHostMayReleaseEverythingWhileAnyMemberHasAWindowOpen) {
    ActingDesktop desktop;
    for (const Call& call : Calls()) {
        SCOPED_TRACE(call.member);
        Passed passed;
        passed.text = std::make_unique<std::u16string>(call.text);
        passed.utils->InitUtils(u"/no such folder/a.log", u"Front Desk", u"", true, u"");
        const std::weak_ptr<Utils> alive = passed.utils;
        const std::size_t before = desktop.StockMessages().size();
        desktop.act = [&] {
            passed = Passed();
            passed.utils->InitUtils(u"/no such folder/b.log", u"Next", u"", true, u"");
            EXPECT_FALSE(alive.expired() && std::string_view(call.member) != "OnCurrencyCtrChange");
            desktop.act = [] {};
        };
        call.make(*passed.utils, passed);
        EXPECT_GT(desktop.StockMessages().size(), before);
        EXPECT_TRUE(alive.expired());
    }
    EXPECT_EQ(utils_->GetCodesCollection()->Count(), 2);
    EXPECT_EQ(utils_->GetSecurityItemsCollection()->Count(), 2);
}

TEST_F(WayIn, AnotherThreadIsRefusedAsByAnyFaultOfTheMember) {
    Start(true);
    for (const Call& call : Calls()) {
        SCOPED_TRACE(call.member);
        Passed passed;
        passed.text = std::make_unique<std::u16string>(call.text);
        const std::size_t before = Log() == "(missing)" ? 0 : Log().size();
        std::thread([&] { call.make(*passed.utils, passed); }).join();
        const bool logsNumber = std::string_view(call.member) == "FindInCombo";
        const char* const fault =
            logsNumber ? "Error: #5" : "Invalid argument: not the user-interface thread";
        EXPECT_NE(Log().find(fault, before), std::string::npos) << Log().substr(before);
    }
    EXPECT_EQ(desktop_.StockMessages().size() + desktop_.Unanswered().size(), 0u);
    EXPECT_EQ(utils_->GetCodesCollection(), nullptr);

    desktop_.HoldKeys({.shift = true});
    bool elsewhere = true;
    std::thread([&] {
        elsewhere = utils_->ShiftPressed();
        utils_->ShowInDebug(u"a line");
    }).join();
    EXPECT_TRUE(utils_->ShiftPressed());
    EXPECT_FALSE(elsewhere);
    EXPECT_EQ(desktop_.Console(), nullptr);
}

}  // namespace
}  // namespace halvek
