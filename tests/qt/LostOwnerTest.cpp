// SPDX-License-Identifier: MIT
#include "tests/HelpFile.h"
#include "tests/qt/DialogCalls.h"
#include "tests/qt/FormTest.h"

#include <halvekutils/core/DebugConsole.h>

#include <QPointer>
#include <QPushButton>

namespace halvek {
namespace {

using LostOwner = FormTest;

TEST_F(LostOwner, ADialogWhoseHostWindowGoesCountsAsClosedAndTheOtherWindowsStay) {
    const HelpFile help;
    std::unique_ptr<QWidget> host;
    utils_->InitUtils(u"", u"Front Desk", u"", true, u"");
    for (const DialogCall& row : kDialogCalls) {
        SCOPED_TRACE(row.name);
        host = OpenHostWindow({100, 100, 300, 200});
        auto* const target = new QPushButton(host.get());
        target->show();
        const User user([&](QDialog& dialog) {
            utils_->ShowHelp(0, 100, help.Path().u16string());
            utils_->ShowInDebug(u"before");
            EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::ArrowCursor);
            const QPointer<QDialog> open(&dialog);
            host.reset();
            utils_->ShowInDebug(u"behind");
            EXPECT_TRUE(Soon([&] { return open == nullptr || !open->isVisible(); }));
        });
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
        EXPECT_EQ(row.open(*utils_, *target, AsOwnerForm(host.get())), row.givenClosed.Str());
        EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
        QGuiApplication::restoreOverrideCursor();
        EXPECT_TRUE(user.HasActed());
        EXPECT_TRUE(DebugConsole::Current()->Text().ends_with(u"behind\r\n"));
        for (const char* stays : {"HelpViewer", "frmDebug"})
            EXPECT_TRUE(Window(stays).isVisible()) << stays;
    }
}

}  // namespace
}  // namespace halvek
