// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/qt/helpers/XDesktop.h>

#include <QtTest>
#include <QtWidgets>
#include <gtest/gtest.h>

#include <functional>
#include <utility>

namespace halvek {

/// How long a test waits, in milliseconds, for something that happens at once if all is well.
inline constexpr int kPatience = 30'000;

/// Lets events go on until a condition holds; false when it never does.
inline bool Soon(const std::function<bool()>& holds) {
    return QTest::qWaitFor(holds, kPatience);
}

/// The user in front of a modal dialog: acts as soon as one is open and active, or only painted.
/// A test fails whose dialog never comes.
///
///     const User user([](QDialog& box) { PressKey(box, Qt::Key_Y); });
///     const auto answer = utils->ShowMsgBox(...);
class User {
  public:
    using Acts = std::function<void(QDialog& dialog)>;
    enum class Awaits { Keyboard, Paint };

    explicit User(Acts acts, Awaits awaited = Awaits::Keyboard)
        : acts_(std::move(acts)), awaited_(awaited) {
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
    ~User() { EXPECT_FALSE(look_.isActive()) << "no dialog has opened"; }

  private:
    void Look() {
        auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr) return;
        const bool isReady =
            awaited_ == Awaits::Keyboard ? IsActive(*dialog) : dialog->windowHandle()->isExposed();
        const bool wasReady = std::exchange(isReady_, isReady);
        if (!isReady && awaited_ == Awaits::Keyboard && sinceAsked_.hasExpired(kAskAgain)) {
            // A window manager that is still starting may leave a new window in the background.
            sinceAsked_.start();
            dialog->activateWindow();
        }
        // One more look: what the display server sent before it gave the keyboard comes first.
        if (!isReady || !wasReady) return;
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
    Awaits awaited_;
    bool isReady_ = false;
    QElapsedTimer sinceAsked_;
    QTimer look_;
    QTimer giveUp_;
};

// Events go to the window, as the display server sends them, and find their control from there.

inline void PressKey(QWidget& window, QKeyCombination key) {
    QTest::keyClick(window.windowHandle(), key.key(), key.keyboardModifiers());
}

/// Types into the control with the focus.
inline void Type(QWidget& window, const char* keys) {
    for (; *keys != 0; ++keys) QTest::keyClick(window.windowHandle(), *keys);
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
