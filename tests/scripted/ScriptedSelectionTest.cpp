// SPDX-License-Identifier: MIT
#include "tests/CleanState.h"
#include "tests/HostWindow.h"

#include <utility>

namespace halvek {
namespace {

constexpr const char16_t* kProviders = u"H:A1\tAdams\t0:B2\tBaker\t1:C3\tClark\t0:";

struct ScriptedSelection : CleanState {
    void SetUp() override { Start(); }

    void ExpectMessage(const char16_t* prompt, IconChoice icon,
                       const char16_t* title = u"Front Desk") {
        desktop_.OnMessageBox([=](MessageBox& box) {
            EXPECT_EQ(box.Prompt(), prompt);
            EXPECT_EQ(box.Picture(), icon);
            EXPECT_EQ(box.Caption(), title);
            box.Press(0);
        });
    }
};

TEST_F(ScriptedSelection, MessagesKeepTheDialogOpenUntilTheCodesAreGood) {
    ExpectMessage(u"'X9' is not a valid entry.", mbInformation);
    ExpectMessage(u"Invalid Entry", mbNoIcon, u"Invalid Entry");
    ExpectMessage(u"Duplicates are not allowed!", mbNoIcon);
    desktop_.OnSelection([](SelectGrid& grid) {
        for (const TextIn refused : {u"A1,X9", u"A1,,", u"A1,A1"}) {
            grid.EditBox(refused, 0);
            grid.Accept();
            EXPECT_TRUE(grid.IsOpen());
        }
        grid.EditBox(u"A1,C3", 5);
        grid.Accept();
    });
    EXPECT_EQ(utils_->ShowSelectionGrid(u"Providers", kProviders), u"A1,C3");
}

TEST_F(ScriptedSelection, TakesItsArgumentsBeforeItOpensAndRefreshesTheFormThatIsStillThere) {
    const auto window = std::make_shared<HostWindow>();
    auto given = std::make_unique<std::pair<std::u16string, std::u16string>>(kProviders, u"C");
    auto& [values, typed] = *given;
    desktop_.OnSelection([&](SelectGrid& grid) {
        EXPECT_EQ(given->second, u"");
        given.reset();
        EXPECT_EQ(grid.Anchor(), (PopupAnchor{PopupEdge::Right, 8000, {}, 700}));
        EXPECT_EQ(grid.Cell(2, 3).text, u"C3");  // B2 is deleted
        EXPECT_EQ(grid.Box().text, u"A1,C");
        EXPECT_EQ(window->refreshes, 0);
    });
    utils_->ShowSelectionGrid(u"Providers", values, u"A1", 7999.6F, -1, 700, window, typed, true);
    EXPECT_EQ(window->refreshes, 1);
    desktop_.OnSelection([&](SelectGrid&) { window->exists = false; });
    utils_->ShowSelection(u"Providers", kProviders, u"", -1, -1, -1, window);
    EXPECT_EQ(window->refreshes, 1);
}

TEST_F(ScriptedSelection, AnOpenDialogAnEmptyListOrAFaultKeepsTheSelection) {
    desktop_.OnSelection([](SelectGrid& grid) { grid.ClickCell(1, 4); });
    EXPECT_EQ(utils_->ShowSelectionGrid(u"Providers", kProviders, u" A1 ,"), u" A1 ,");
    ExpectMessage(u"Incomplete data received for Lookup Selection Grid.", mbCritical);
    EXPECT_EQ(utils_->ShowSelection(u"Providers", u"", u" A1"), u" A1");
    EXPECT_EQ(desktop_.AnswersLeft(), 0u);
    EXPECT_EQ(utils_->ShowSelectionGrid(u"Providers", kProviders, u" A1"), u" A1");
    EXPECT_NE(Log().find("\tShowSelectionGridForm error Invalid argument: "), std::string::npos);
    Services::Install(nullptr);
    EXPECT_EQ(utils_->ShowSelectionGrid(u"Providers", kProviders, u"A1"), u"");
    EXPECT_TRUE(Log().ends_with("error Object not set: current Utils\r\n")) << Log();
}

}  // namespace
}  // namespace halvek
