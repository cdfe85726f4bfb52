// SPDX-License-Identifier: MIT
#include "tests/CleanState.h"

namespace halvek {
namespace {

using ScriptedSelection = CleanState;

TEST_F(ScriptedSelection, MessagesKeepTheDialogOpenUntilTheCodesAreGood) {
    Start();
    const struct {
        TextIn typed, told, title;
        IconChoice icon;
    } refused[] = {
        {u"A1,X9", u"'X9' is not a valid entry.", u"Front Desk", mbInformation},
        {u"A1,,", u"Invalid Entry", u"Invalid Entry", mbNoIcon},
        {u"A1,A1", u"Duplicates are not allowed!", u"Front Desk", mbNoIcon},
    };
    desktop_.OnSelection([&](SelectGrid& grid) {
        for (const auto& row : refused) {
            desktop_.OnMessageBox([&](MessageBox& box) {
                EXPECT_EQ(box.Prompt(), row.told);
                EXPECT_EQ(box.Picture(), row.icon);
                EXPECT_EQ(box.Caption(), row.title);
                box.Press(0);
            });
            grid.EditBox(row.typed, 0);
            grid.Accept();
            EXPECT_TRUE(grid.IsOpen());
        }
        grid.EditBox(u"A1,C3", 5);
        grid.Accept();
    });
    EXPECT_EQ(utils_->ShowSelectionGrid(u"Providers", u"H:A1\tAdams\t0:C3\tClark\t0:"), u"A1,C3");
}

}  // namespace
}  // namespace halvek
