// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/qt/helpers/XDesktop.h>

#include <QApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QTest>
#include <QTimer>
#include <QWindow>
#include <gtest/gtest.h>

#include <functional>
#include <utility>
#include <vector>

namespace halvek {

/// How long a test waits, in milliseconds, for something that happens at once if all is well.
inline constexpr int kPatience = 30'000;

/// Lets events go on until a condition holds; false when it never does.
inline bool Soon(const std::function<bool()>& holds) {
    return QTest::qWaitFor(holds, kPatience);
}

/// The user in front of a modal dialog: acts as soon as one is open and active.
///
///     const User user([](QDialog& box) { PressKey(box, Qt::Key_Y); });
///     const auto answer = utils->ShowMsgBox(...);
class User {
  public:
    using Acts = std::function<void(QDialog& dialog)>;

    explicit User(Acts acts) : acts_(std::move(acts)) {
        QObject::connect(&look_, &QTimer::timeout, [this] { Look(); });
        sinceAsked_.start();
        look_.start(0);
        QObject::connect(&giveUp_, &QTimer::timeout, [] {
            ADD_FAILURE() << "a dialog stays open or never opens";
            QCoreApplication::exit(1);
        });
        giveUp_.setSingleShot(true);
        giveUp_.start(2 * kPatience);
    }

    bool HasActed() const { return !look_.isActive(); }

  private:
    void Look() {
        auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr) return;
        const bool wasActive = std::exchange(isActive_, IsActive(*dialog));
        if (!isActive_ && sinceAsked_.hasExpired(kAskAgain)) {
            // A window manager that is still starting may leave a new window in the background.
            sinceAsked_.start();
            dialog->activateWindow();
        }
        // One more look: what the display server sent before it gave the keyboard comes first.
        if (!isActive_ || !wasActive) return;
        look_.stop();
        acts_(*dialog);
    }

    static constexpr int kAskAgain = 1000;

    /// Qt takes a window for active before the display server does.
    static bool IsActive(const QDialog& dialog) {
        const bool isOnServer = QGuiApplication::platformName() == QLatin1String("xcb");
        return dialog.isActiveWindow() && (!isOnServer || HasKeyboard(dialog));
    }

    Acts acts_;
    bool isActive_ = false;
    QElapsedTimer sinceAsked_;
    QTimer look_;
    QTimer giveUp_;
};

// Events go to the window, as the display server sends them, and find their control from there.

inline void PressKey(QWidget& window, QKeyCombination key) {
    QTest::keyClick(window.windowHandle(), key.key(), key.keyboardModifiers());
}

/// Presses keys while the dialog is open.
inline User::Acts Keys(std::vector<QKeyCombination> keys) {
    return [keys = std::move(keys)](QDialog& dialog) {
        for (const QKeyCombination key : keys) {
            if (dialog.isVisible()) PressKey(dialog, key);
        }
    };
}

inline void CloseRequest(QWidget& window) {
    window.windowHandle()->close();
}

/// A part of a window by its name; without it no test of the window can go on.
template <class Part = QWidget>
Part& Find(const QWidget& window, const char* name) {
    auto* const part = window.findChild<Part*>(QLatin1String(name));
    if (part == nullptr) qFatal("there is no %s", name);
    return *part;
}

inline void Click(QWidget& window, const QWidget& control) {
    const QPoint centre = control.mapTo(&window, control.rect().center());
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, centre);
}

}  // namespace halvek
