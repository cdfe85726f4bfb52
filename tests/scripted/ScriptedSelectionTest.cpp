#include "tests/CleanState.h"

#include <halvekutils/core/Utils.h>
#include <halvekutils/scripted/ScriptedPlatform.h>

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace halvek {
namespace {

constexpr const char16_t* kProviders = u"H:A1\tAdams\t0:B2\tBaker\t1:C3\tClark\t0:";

class HostWindow : public OwnerForm {
  public:
    std::int32_t Left() const override { return 0; }
    std::int32_t Top() const override { return 0; }
    std::int32_t Width() const override { return 0; }
    std::int32_t Height() const override { return 0; }
    bool Exists() const override { return exists; }
    void Refresh() override { ++refreshes; }

    bool exists = true;
    int refreshes = 0;
};

class ScriptedSelection : public CleanState {
  protected:
    void SetUp() override { utils_->InitUtils(u"", u"Front Desk", u"", false, u""); }

    std::u16string Show(ScriptedPlatform::SelectionAnswer answer, TextIn selected = {}) {
        desktop_.OnSelection(std::move(answer));
        std::u16string chosen = utils_->ShowSelectionGrid(u"Providers", kProviders, selected);
        EXPECT_EQ(desktop_.AnswersLeft(), 0u);
        return chosen;
    }

    void ExpectMessage(const char16_t* prompt, IconChoice icon, const char16_t* title) {
        desktop_.OnMessageBox([=](MessageBox& box) {
            EXPECT_EQ(box.Prompt(), prompt);
            EXPECT_EQ(box.Picture(), icon);
            EXPECT_EQ(box.Caption(), title);
            box.Press(0);
        });
    }

    std::string Log() const { return ReadFile(machine_.ownFolder / "Error.Log"); }

    std::shared_ptr<Utils> utils_ = Utils::Create();
};

TEST_F(ScriptedSelection, AUserTypesTicksClearsAndTakesAll) {
    ExpectMessage(u"'X9' is not a valid entry.", mbInformation, u"Front Desk");
    ExpectMessage(u"Invalid Entry", mbNoIcon, u"Invalid Entry");
    const auto chosen = Show([](SelectGrid& grid) {
        EXPECT_EQ(grid.Caption(), u"Providers    [Total: 3]");
        grid.FocusBox(SelectGrid::BoxFocus::Entered);
        grid.EditBox(u"A1,X9,", 6);
        grid.ReleaseComma();
        EXPECT_EQ(grid.HeaderText(), u"Providers  (A1)");
        grid.EditBox(u"A1,,", 4);
        grid.Accept();
        EXPECT_TRUE(grid.IsOpen());
        grid.EditBox(u"A1,", 3);
        EXPECT_TRUE(grid.ValidateBox());
        grid.TypeLetter(u'c', false);
        grid.KeyDown(SelectGrid::Key::Space);
        EXPECT_EQ(grid.Box().text, u"A1,C3");
        grid.EditBox(u"", 0);
        EXPECT_FALSE(grid.Cell(1, 4).checked);
        grid.ClickCell(2, 1);
        EXPECT_EQ(grid.Box().text, u"A1,B2,C3");
        grid.ClickCell(2, 3);
        grid.KeyDown(SelectGrid::Key::Enter);
    });
    EXPECT_EQ(chosen, u"A1,C3");
}

TEST_F(ScriptedSelection, EveryWayOutButOkKeepsTheSelection) {
    const auto toggle = [](SelectGrid& grid) { grid.ClickCell(1, 4); };
    EXPECT_EQ(Show(toggle, u" A1 ,"), u" A1 ,");  // left open
    EXPECT_EQ(Show([](SelectGrid& grid) { grid.Cancel(); }, u"A1"), u"A1");
    EXPECT_EQ(Show([](SelectGrid& grid) { grid.Accept(); }, u"A1"), u"CANCEL");
    EXPECT_EQ(Show([](SelectGrid& grid) { grid.ClickHeader(); }, u"A1"), u"CANCEL");
    ExpectMessage(u"'Z' is not a valid entry.", mbInformation, u"Front Desk");
    EXPECT_EQ(Show([](SelectGrid& grid) { EXPECT_EQ(grid.Box().text, u"A1"); }, u"Z,A1"), u"Z,A1");
}

TEST_F(ScriptedSelection, TakesTheTypedCharacterRefreshesTheFormAndKeepsThePosition) {
    const auto window = std::make_shared<HostWindow>();
    auto typed = std::make_unique<std::u16string>(u"C");
    auto values = std::make_unique<std::u16string>(kProviders);
    desktop_.OnSelection([&](SelectGrid& grid) {
        EXPECT_EQ(*typed, u"");
        typed.reset();
        values.reset();
        EXPECT_EQ(grid.OriginalLeft(), 8000);
        EXPECT_EQ(grid.OriginalTop(), -1);
        EXPECT_EQ(grid.Anchor(), (PopupAnchor{PopupEdge::Right, 8000, {}, 700}));
        EXPECT_EQ(grid.RowCount(), 3);
        EXPECT_EQ(grid.Cell(2, 3).text, u"C3");  // B2 is deleted
        EXPECT_EQ(grid.Box().text, u"A1,C");
        grid.Cancel();
        EXPECT_EQ(window->refreshes, 0);
    });
    EXPECT_EQ(utils_->ShowSelectionGrid(u"Providers", *values, u"A1", 7999.6F, -1, 700, window,
                                        *typed, true),
              u"A1");
    EXPECT_EQ(window->refreshes, 1);
    window->exists = false;
    desktop_.OnSelection([](SelectGrid& grid) { EXPECT_EQ(grid.Cell(2, 3).textColor, 255); });
    utils_->ShowSelection(u"Providers", kProviders, u"", -1, -1, -1, window);
    EXPECT_EQ(window->refreshes, 1);
}

TEST_F(ScriptedSelection, AnEmptyListOnlyTellsSo) {
    ExpectMessage(u"Incomplete data received for Lookup Selection Grid.", mbCritical,
                  u"Front Desk");
    std::u16string typed = u"A";
    EXPECT_EQ(utils_->ShowSelection(u"Providers", u"", u" A1", -1, -1, -1, nullptr, typed), u" A1");
    EXPECT_EQ(typed, u"A");
}

TEST_F(ScriptedSelection, AFaultIsLoggedAndKeepsTheSelection) {
    EXPECT_EQ(utils_->ShowSelectionGrid(u"Providers", kProviders, u" A1"), u" A1");
    EXPECT_TRUE(Log().ends_with(
        "\tShowSelectionGridForm error Invalid argument: no answer for the selection list "
        "Providers    [Total: 3]\r\n"))
        << Log();
    Services::Install(nullptr);
    EXPECT_EQ(utils_->ShowSelectionGrid(u"Providers", kProviders, u"A1"), u"");
    EXPECT_TRUE(Log().ends_with("error Object not set: current Utils\r\n")) << Log();
}

}  // namespace
}  // namespace halvek
