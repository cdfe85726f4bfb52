// SPDX-License-Identifier: MIT
#pragma once

#include "tests/CleanState.h"
#include "tests/qt/User.h"

#include <halvekutils/qt/QtPlatform.h>

namespace halvek {

/// A dialog on the screen; null without one.
inline QDialog* OpenDialog() {
    for (QWidget* const window : QApplication::topLevelWidgets()) {
        auto* const dialog = qobject_cast<QDialog*>(window);
        if (dialog != nullptr && dialog->isVisible()) return dialog;
    }
    return nullptr;
}

/// A window by its name; without it no test of the window can go on.
inline QWidget& Window(const char* name) {
    for (QWidget* const window : QApplication::topLevelWidgets())
        if (window->objectName() == name) return *window;
    qFatal("there is no %s", name);
}

/// Gives the keyboard to a window, which may take it only once it is painted.
inline void Activate(QWidget& window) {
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
    window.activateWindow();
    EXPECT_TRUE(Soon([&] { return window.isActiveWindow(); }));
}

/// An active window of a host's.
inline std::unique_ptr<QWidget> OpenHostWindow(const QRect& place) {
    auto window = std::make_unique<QWidget>();
    window->setGeometry(place);
    window->show();
    Activate(*window);
    return window;
}

/// A session on the Qt desktop. Ends without a dialog on the screen or a line in the error log.
class FormTest : public CleanState {
  protected:
    FormTest() { Start(); }
    ~FormTest() override {
        EXPECT_EQ(Log(), "(missing)");
        EXPECT_EQ(OpenDialog(), nullptr);
    }

    /// The error log, which is empty afterwards.
    std::string TakeLog() const {
        std::string log = Log();
        std::filesystem::remove(machine_.ownFolder / "Error.Log");
        return log;
    }

    QtPlatform desktop_;
};

}  // namespace halvek
