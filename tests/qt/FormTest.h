// SPDX-License-Identifier: MIT
#pragma once

#include "tests/TemporaryFolder.h"
#include "tests/TestMachine.h"
#include "tests/qt/User.h"

#include <halvekutils/core/Platform.h>
#include <halvekutils/core/Session.h>
#include <halvekutils/core/Utils.h>
#include <halvekutils/platform/Services.h>
#include <halvekutils/qt/QtPlatform.h>

namespace halvek {

/// A session on the Qt desktop. Ends without a dialog on the screen or a line in the error log.
class FormTest : public ::testing::Test {
  protected:
    FormTest() {
        Reset();
        use_.emplace(machine_);
        utils_->InitUtils(u"", u"Front Desk", u"", false, u"");
    }
    ~FormTest() override {
        EXPECT_EQ(ReadFile(machine_.ownFolder / "Error.Log"), "(missing)");
        EXPECT_EQ(OpenDialog(), nullptr);
        use_.reset();
        Reset();
    }

    /// A dialog on the screen; null without one.
    static QDialog* OpenDialog() {
        for (QWidget* const window : QApplication::topLevelWidgets()) {
            auto* const dialog = qobject_cast<QDialog*>(window);
            if (dialog != nullptr && dialog->isVisible()) return dialog;
        }
        return nullptr;
    }

    /// A window by its name; without it no test of the window can go on.
    static QWidget& Window(const char* name) {
        for (QWidget* const window : QApplication::topLevelWidgets())
            if (window->objectName() == name) return *window;
        qFatal("there is no %s", name);
    }

    /// An active window of a host's.
    static std::unique_ptr<QWidget> OpenHostWindow(const QRect& place) {
        auto window = std::make_unique<QWidget>();
        window->setGeometry(place);
        window->show();
        window->activateWindow();
        EXPECT_TRUE(Soon([&] { return window->isActiveWindow(); }));
        return window;
    }

    TemporaryFolder folder_;
    TestMachine machine_{folder_ / "own/state"};
    QtPlatform desktop_;
    std::shared_ptr<Utils> utils_ = Utils::Create();

  private:
    static void Reset() {
        TheSession() = Session();
        Services::Install(nullptr);
    }

    std::optional<UseMachine> use_;
};

}  // namespace halvek
