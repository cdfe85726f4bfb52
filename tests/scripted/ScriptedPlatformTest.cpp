#include "tests/CleanState.h"

#include <halvekutils/base/Utf8.h>
#include <halvekutils/core/Utils.h>
#include <halvekutils/scripted/ScriptedPlatform.h>

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace halvek {
namespace {

class ScriptedPlatformTest : public CleanState {
  protected:
    void SetUp() override { utils_->InitUtils(u"", u"Front Desk", u"", false, u""); }

    MbMsgBoxResult Ask(ButtonsChoice buttons) {
        return utils_->ShowMsgBox(u"Delete the visit?", buttons, mbQuestion, u"");
    }

    std::string Log() const { return ReadFile(machine_.ownFolder / "Error.Log"); }

    std::shared_ptr<Utils> utils_ = Utils::Create();
};

TEST_F(ScriptedPlatformTest, PlaysTheUserOnTheBoxThatTheHostShows) {
    desktop_.OnMessageBox([](MessageBox& box) {
        EXPECT_EQ(box.Prompt(), u"Delete the visit?");
        EXPECT_EQ(box.Caption(), u"Front Desk");
        EXPECT_EQ(box.Picture(), mbQuestion);
        box.Press(1);
    });
    desktop_.OnMessageBox([](MessageBox& box) {
        box.Tick();
        box.Tick();
    });
    EXPECT_EQ(Ask(mbYesNo), mbNo);
    EXPECT_EQ(utils_->ShowMsgBox(u"", mbYesNo, mbNoIcon, u"", mbGray, mb5, true, 2),
              kClosedByCountdown);
    EXPECT_EQ(desktop_.AnswersLeft(), 0u);
}

TEST_F(ScriptedPlatformTest, ABoxLeftOpenIsClosedAsByItsCloseBox) {
    const struct {
        ButtonsChoice buttons;
        MbMsgBoxResult answer;
    } rows[] = {{mbYesNoCancel, mbCancel},
                {mbYesHelp, mbYes},
                {mbNoButtons, mbOK},
                {mbYesNo, kNotAnswered}};
    for (const auto& row : rows) {
        desktop_.OnMessageBox([](MessageBox&) {});
        EXPECT_EQ(Ask(row.buttons), row.answer) << row.buttons;
    }
    EXPECT_EQ(Log(), "(missing)");
}

TEST_F(ScriptedPlatformTest, OutOfRangeChoicesAreWrittenBackBeforeTheBoxOpens) {
    const struct {
        std::int32_t background, fontSize, newBackground, newFontSize;
    } rows[] = {{0, 0, mbWhite, mb9},
                {4, 10, mbWhite, mb9},
                {-7, -7, mbWhite, -7},
                {mbGray, mb5, mbGray, mb5},
                {mbSkinColor, mb14, mbSkinColor, mb14}};
    for (const auto& row : rows) {
        auto background = static_cast<ColorChoice>(row.background);
        auto fontSize = static_cast<FontSizeChoice>(row.fontSize);
        desktop_.OnMessageBox([&](MessageBox&) {
            EXPECT_EQ(background, row.newBackground);
            EXPECT_EQ(fontSize, row.newFontSize);
        });
        utils_->ShowMsgBox(u"", mbOkOnly, mbNoIcon, u"", background, fontSize);
        EXPECT_EQ(desktop_.AnswersLeft(), 0u);
    }
}

TEST_F(ScriptedPlatformTest, AFaultIsLoggedAndAnswersNothing) {
    EXPECT_EQ(Ask(mbYesNo), kNotAnswered);  // the script holds no answer
    desktop_.OnMessageBox([](MessageBox&) { throw std::bad_alloc(); });
    EXPECT_EQ(Ask(mbOkOnly), kNotAnswered);
    const std::string start = "03/05/24 09:07:03 AM\tnina\tError in Utils.ShowMsgBox ";
    const std::string log = Log();
    EXPECT_TRUE(log.starts_with(start + "Invalid argument: no answer")) << log;
    EXPECT_TRUE(log.ends_with(start + "Out of memory\r\n")) << log;
    EXPECT_EQ(desktop_.Beeps(), 2);
}

TEST_F(ScriptedPlatformTest, ABoxBeforeInitUtilsFailsAsAnyFault) {
    Services::Install(nullptr);
    desktop_.OnMessageBox([](MessageBox& box) { box.Press(0); });
    EXPECT_EQ(Ask(mbOkOnly), kNotAnswered);
    EXPECT_EQ(Log(),
              "03/05/24 09:07:03 AM\tnina\tError in Utils.ShowMsgBox Object not set: "
              "current Utils\r\n");
    EXPECT_EQ(desktop_.AnswersLeft(), 1u);
}

TEST(NoPlatform, ABoxFailsAsAnyFaultAndIsLogged) {
    const TemporaryFolder folder;
    TestMachine machine(folder.Path());
    const UseMachine use(machine);
    const auto utils = Utils::Create();
    EXPECT_EQ(utils->ShowMsgBox(u"", mbOkOnly, mbNoIcon, u""), kNotAnswered);
    EXPECT_EQ(ReadFile(folder / "Error.Log"),
              "03/05/24 09:07:03 AM\tnina\tError in Utils.ShowMsgBox Object not set: desktop\r\n");
    State() = ComponentState();
}

TEST_F(ScriptedPlatformTest, ABoxOpensFromWithinTheAnswerOfAnother) {
    MbMsgBoxResult inner = kNotAnswered;
    desktop_.OnMessageBox([&](MessageBox& box) {
        desktop_.OnMessageBox([](MessageBox& nested) { nested.Press(2); });
        inner = Ask(mbAbortRetryIgnore);
        EXPECT_TRUE(box.IsOpen());
        box.Press(0);
    });
    EXPECT_EQ(Ask(mbYesNo), mbYes);
    EXPECT_EQ(inner, mbIgnore);
}

TEST_F(ScriptedPlatformTest, TheHostMayReleaseEverythingWhileItsBoxIsOpen) {
    auto utils = Utils::Create();
    Utils& released = *utils;
    const std::weak_ptr<Utils> alive = utils;
    auto prompt = std::make_unique<std::u16string>(500, u'p');
    auto title = std::make_unique<std::u16string>(100, u't');
    desktop_.OnMessageBox([&](MessageBox& box) {
        utils.reset();
        prompt.reset();
        title.reset();
        EXPECT_FALSE(alive.expired());
        EXPECT_EQ(box.Prompt(), std::u16string(500, u'p'));
        EXPECT_EQ(box.Caption(), std::u16string(100, u't'));
        box.Press(0);
    });
    EXPECT_EQ(released.ShowMsgBox(*prompt, mbYesNo, mbNoIcon, *title), mbYes);
    EXPECT_TRUE(alive.expired());
}

TEST_F(ScriptedPlatformTest, AModelessBoxCanBecomeModal) {
    const auto box = std::make_shared<MessageBox>(
        MessageBoxRequest{u"Printing", mbOkCancel, mbNoIcon, u""}, Services::Current(), desktop_);
    desktop_.Show(box, Modality::Modeless);
    EXPECT_EQ(desktop_.ModelessBoxes().size(), 1u);
    EXPECT_TRUE(box->IsOpen());
    desktop_.OnMessageBox([](MessageBox& shown) { shown.Press(0); });
    desktop_.Show(box, Modality::Modal);
    EXPECT_TRUE(desktop_.ModelessBoxes().empty());
    EXPECT_EQ(box->ReturnedValue(), mbOK);
}

TEST_F(ScriptedPlatformTest, TheLastPlatformAnswersUntilItGoes) {
    {
        ScriptedPlatform inner;
        inner.OnMessageBox([](MessageBox& box) { box.Press(0); });
        EXPECT_EQ(Ask(mbYesNo), mbYes);
    }
    desktop_.OnMessageBox([](MessageBox& box) { box.Press(1); });
    EXPECT_EQ(Ask(mbYesNo), mbNo);
    Beep();
    EXPECT_EQ(desktop_.Beeps(), 1);
}

}  // namespace
}  // namespace halvek
