// SPDX-License-Identifier: MIT
#include "tests/CleanState.h"
#include "tests/FaultOf.h"
#include "tests/HostWindow.h"

#include <halvekutils/platform/Beep.h>

#include <gmock/gmock.h>

namespace halvek {
namespace {

class ScriptedPlatformTest : public CleanState {
  protected:
    void SetUp() override { Start(); }

    MbMsgBoxResult Ask(ButtonsChoice buttons) {
        return utils_->ShowMsgBox(u"Delete the visit?", buttons, mbQuestion, u"");
    }
};

TEST_F(ScriptedPlatformTest, PlaysTheUserOnTheBoxesThatTheHostShows) {
    desktop_.OnMessageBox([](MessageBox& box) {
        EXPECT_EQ(box.CopyText(), u"Front Desk\r\n\r\nDelete the visit?\r\n\r\nYes   No");
        EXPECT_EQ(testing::PrintToString(TextIn(box.ButtonCaption(0))), "u\"&Yes\"");
        box.Press(1);
    });
    EXPECT_EQ(Ask(mbYesNo), mbNo);
    desktop_.OnMessageBox([](MessageBox& box) { box.Tick(); });
    EXPECT_EQ(utils_->ShowMsgBox(u"", mbYesNo, mbNoIcon, u"", mbGray, mb5, true, 1),
              kClosedByCountdown);
    desktop_.OnMessageBox([&](MessageBox&) {
        desktop_.OnMessageBox([](MessageBox& nested) { nested.Press(2); });
        EXPECT_EQ(Ask(mbAbortRetryIgnore), mbIgnore);
    });
    EXPECT_EQ(Ask(mbYesNoCancel), mbCancel);  // a box left open is closed
}

TEST_F(ScriptedPlatformTest, RecordsTheHelpThatTheHostOpensAndTheFilesThatAreMissing) {
    WriteFile(folder_ / "desk.chm", "help");
    EXPECT_FALSE(utils_->ShowHelp(0, 1));
    EXPECT_EQ(desktop_.StockMessages().back().text, u"File  is not found.");
    utils_->InitHelp((folder_ / "desk.chm").u16string());
    EXPECT_TRUE(utils_->ShowHelp(0, -3));
    EXPECT_EQ(desktop_.HelpShown().back().contextId, -3);
    EXPECT_FALSE(utils_->ShowHelpByTopic(7, u"::/a.htm", u"C:\\none.chm"));
    EXPECT_EQ(desktop_.StockMessages().back().text, u"File C:\\none.chm is not found.");
    EXPECT_EQ(desktop_.StockMessages().back().icon, StockIcon::Critical);
    EXPECT_TRUE(utils_->ShowHelpByTopic(0, u"::/a.htm#b"));
    EXPECT_EQ(desktop_.HelpShown().back().file, folder_ / "desk.chm");
    EXPECT_EQ(desktop_.HelpShown().back().topic, u"::/a.htm#b");
}

TEST_F(ScriptedPlatformTest, AFaultIsLoggedAndAnswersNothing) {
    EXPECT_EQ(Ask(mbYesNo), kNotAnswered);  // the script has no answer
    desktop_.OnMessageBox([](MessageBox&) { throw std::bad_alloc(); });
    EXPECT_EQ(Ask(mbOkOnly), kNotAnswered);
    const std::string start = "03/05/24 09:07:03 AM\tnina\tError in Utils.ShowMsgBox ";
    EXPECT_TRUE(Log().starts_with(start + "Invalid argument: no answer")) << Log();
    EXPECT_TRUE(Log().ends_with(start + "Out of memory\r\n")) << Log();
    Services::Install(nullptr);
    EXPECT_EQ(Ask(mbOkOnly), kNotAnswered);
    EXPECT_TRUE(Log().ends_with(start + "Object not set: current Utils\r\n")) << Log();
    EXPECT_EQ(desktop_.Beeps(), 3);
    EXPECT_THAT(desktop_.Unanswered(), testing::ElementsAre(u"message box Front Desk"));
}

TEST(NoPlatform, IsAFault) {
    EXPECT_EQ(FaultOf([] { Platform::Installed(); }), 91);
}

/// A form that pop-ups belong to
struct Form : HostWindow {
    std::uint32_t Window() const override { return 7; }
};

TEST_F(ScriptedPlatformTest, APopUpBelongsToTheFormThatIsRefreshedAfterIt) {
    const auto form = std::make_shared<Form>();
    utils_->InitPrefs(StringArray(1, {u"255", u"0", u"0", u"0"}), 0, 0, 0, 0);
    const auto look = [&](auto& rules) {
        PopupAnchor anchor = {rules.Anchor().edge, 8000, {}, 700};
        anchor.window = form->exists ? 7 : 0;
        EXPECT_EQ(rules.Anchor(), anchor);
        EXPECT_EQ(form->refreshes, 0);
    };
    const std::function<void()> calls[] = {
        [&] { utils_->ShowCalendar(7999.6F, -1, 700, u"", u"", form); },
        [&] { utils_->ShowColor(8000, -1, 700, form); },
        [&] { utils_->ShowSelection(u"L", u"H:A\tAlpha\t0:", u"", 8000, -1, 700, form); }};
    for (const bool isThere : {true, false}) {
        desktop_.OnCalendar(look);
        desktop_.OnColorPalette(look);
        desktop_.OnSelection(look);
        form->exists = isThere;
        for (const auto& call : calls) {
            form->refreshes = 0;
            call();
            EXPECT_EQ(form->refreshes, isThere ? 1 : 0);
        }
    }
    EXPECT_EQ(desktop_.AnswersLeft(), 0u);
}

}  // namespace
}  // namespace halvek
