// SPDX-License-Identifier: MIT
#include "tests/HelpFile.h"
#include "tests/qt/FormTest.h"

#include <halvekutils/base/NumericText.h>
#include <halvekutils/core/DebugConsole.h>
#include <halvekutils/qt/QtControls.h>

#include <QPointer>
#include <QPushButton>

#include <functional>

namespace halvek {
namespace {

using LostOwner = FormTest;

TEST_F(LostOwner, ADialogWhoseHostWindowGoesCountsAsClosedAndTheOtherWindowsStay) {
    const HelpFile help;
    std::unique_ptr<QWidget> host;
    const auto target = [&] { return Beside(host->findChild<QPushButton*>()); };
    const auto form = [&] { return AsOwnerForm(host.get()); };
    const std::pair<std::function<std::u16string()>, std::u16string> rows[] = {
        {[&] { return IntegerText(utils_->ShowMsgBox(u"?", mbYesNo, mbNoIcon, u"")); }, u"0"},
        {[&] { return utils_->Calculate(u"12"); }, u""},
        {[&] { return utils_->ShowCalendarAndCalculateCoordinates(target(), u"", u"", form()); },
         u""},
        {[&] { return utils_->ShowColorAndCalculateCoordinates(target(), form()); }, u""},
        {[&] {
             return utils_->ShowSelectionAndCalculateCoordinates(u"Codes", u"H:A\tAlpha\t0:", u"A",
                                                                 target(), form());
         },
         u"A"},
    };
    utils_->InitUtils(u"", u"Front Desk", u"", true, u"");
    utils_->InitPrefs(StringArray(1, {u"255", u"0", u"0", u"0"}), 0, 0, 0, 0);
    for (const auto& [call, closed] : rows) {
        host = OpenHostWindow({100, 100, 300, 200});
        (new QPushButton(host.get()))->show();
        const User user([&](QDialog& dialog) {
            utils_->ShowHelp(0, 100, help.Path().u16string());
            utils_->ShowInDebug(u"before");
            const QPointer<QDialog> open(&dialog);
            host.reset();
            utils_->ShowInDebug(u"behind");
            EXPECT_TRUE(Soon([&] { return open == nullptr || !open->isVisible(); }));
        });
        EXPECT_EQ(call(), closed);
        EXPECT_TRUE(user.HasActed());
        EXPECT_TRUE(DebugConsole::Current()->Text().ends_with(u"behind\r\n"));
        for (const char* stays : {"HelpViewer", "frmDebug"})
            EXPECT_TRUE(Window(stays).isVisible()) << stays;
    }
}

}  // namespace
}  // namespace halvek
