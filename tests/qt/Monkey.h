// SPDX-License-Identifier: MIT
#pragma once

#include "tests/qt/User.h"
#include "tests/stage/Calls.h"

#include <QClipboard>
#include <QDrag>
#include <QPointer>
#include <QWheelEvent>

#include <csignal>
#include <cstdio>
#include <random>

extern "C" [[gnu::weak]] void __sanitizer_set_death_callback(void (*callback)());

namespace halvek {

/// Sends random keys, clicks, drags, wheel turns and close requests to the window in front, in
/// every event loop that runs, until its steps are used up; then it only closes windows. A process
/// that dies prints the last acts.
class Monkey {
  public:
    /// @param ownKeys  keys that mean something to the window, pressed often
    Monkey(unsigned seed, int steps, QString ownKeys)
        : random_(seed), seed_(seed), steps_(steps), ownKeys_(std::move(ownKeys)) {
        current_ = this;
        if (__sanitizer_set_death_callback != nullptr) __sanitizer_set_death_callback(Tell);
        std::signal(SIGABRT, [](int) { Tell(); });
        QObject::connect(&turns_, &QTimer::timeout, [this] { Turn(); });
        turns_.start(0);
    }
    ~Monkey() { current_ = nullptr; }
    Q_DISABLE_COPY(Monkey)

    bool IsDone() const { return step_ >= steps_; }
    const QString& LastAct() const { return acts_[(step_ - 1) % kKept]; }

    /// The seed, the step and the last acts.
    std::string Trail() const {
        QString trail = QStringLiteral("seed %1, step %2").arg(seed_).arg(step_);
        for (int i = std::max(step_ - kKept, 0); i < step_; ++i) trail += "\n  " + acts_[i % kKept];
        return trail.toStdString() + '\n';
    }

    /// Acts on a window that is not modal until it is closed.
    void PlayWith(QWidget& window) {
        for (window_ = &window; window.isVisible();) QCoreApplication::processEvents();
    }

  private:
    static constexpr int kKept = 20;

    static void Tell() {
        if (current_ != nullptr) std::fputs(current_->Trail().c_str(), stderr);
        current_ = nullptr;
    }
    int Below(int count) { return static_cast<int>(random_() % static_cast<unsigned>(count)); }
    template <class List>
    auto Any(const List& list) {
        return std::data(list)[Below(static_cast<int>(std::size(list)))];
    }
    QPoint Place(const QWidget& window) { return {Below(window.width()), Below(window.height())}; }

    QWidget* Front() const {
        return ::Front(window_ != nullptr && window_->isVisible() ? window_.data() : nullptr);
    }

    /// A few acts, faster than windows are painted.
    void Turn() {
        QTimer above;  // goes on in the event loop of a dialog that an act opens
        QObject::connect(&above, &QTimer::timeout, [this] { Turn(); });
        above.start(0);
        const QPointer<QWidget> front = Front();
        if (front == nullptr) return QDrag::cancel();
        for (int i = Below(200); i >= 0 && front != nullptr && front == Front(); --i) {
            if (!front->isActiveWindow()) return Activate(*front);
            Act(*front);
        }
    }

    static void Activate(QWidget& window) {
        const QWindow& handle = *window.windowHandle();
        if (!handle.flags().testFlag(Qt::WindowDoesNotAcceptFocus)) window.activateWindow();
    }

    void Act(QWidget& window) {
        if (step_ > steps_ + kPatience) qFatal("a window stays open");
        const int dice = IsDone() ? 0 : Below(1000);
        if (dice < 4) return End(window);
        if (dice < 35) return UseMouse(window);
        if (dice < 45) return Paste(window);
        static constexpr Qt::KeyboardModifier kModifiers[] = {
            Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier, Qt::KeypadModifier};
        static constexpr int kEditing[] = {
            Qt::Key_Tab,  Qt::Key_Backtab, Qt::Key_Left, Qt::Key_Right,  Qt::Key_Up,
            Qt::Key_Down, Qt::Key_Home,    Qt::Key_End,  Qt::Key_PageUp, Qt::Key_PageDown,
            Qt::Key_F3,   Qt::Key_Delete,  Qt::Key_F7,   Qt::Key_Insert, Qt::Key_Backspace};
        const int any[] = {Any(ownKeys_).unicode(), Any(ownKeys_).unicode(), Any(kEditing),
                           Below(9) > 0 ? Any(kEditing) : Qt::Key_Insert + Below(0x60),
                           Qt::Key_Space + Below(0x40) + (Below(9) > 0 ? 0 : 0x80)};
        const auto modifiers = Below(12) > 0 ? Qt::NoModifier : Any(kModifiers) | Any(kModifiers);
        Press(window, modifiers | static_cast<Qt::Key>(Any(any)));
    }

    void Note(const QWidget& window, const QString& act) {
        acts_[step_++ % kKept] = window.objectName() + ' ' + act;
    }

    void Press(QWidget& window, QKeyCombination keys) {
        const bool isHeld = Below(20) == 0;
        Note(window, QKeySequence(keys).toString() + (isHeld ? " held" : ""));
        QString text = keys.key() < 0x100 ? QChar(keys.key()).toLower() : QString();
        if (keys.keyboardModifiers() & Qt::ControlModifier) text = QChar(keys.key() & 0x1f);
        const QPointer<QWindow> target = window.windowHandle();
        for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            if (target == nullptr) continue;
            qt_handleKeyEvent(target, type, keys.key(), keys.keyboardModifiers(), text, isHeld);
        }
    }

    void Paste(QWidget& window) {
        static const QString kTexts[] = {"1", "-2.5", "$1,234.50", "A,C", "x\n\t<b>", "1.234,5"};
        QApplication::clipboard()->setText(Any(kTexts));
        Press(window, Qt::CTRL | Qt::Key_V);
    }

    /// Clicks, double clicks, drags and wheel turns, on a control or anywhere.
    void UseMouse(QWidget& window) {
        const auto parts = window.findChildren<QWidget*>();
        const QWidget* const part = parts.isEmpty() ? &window : Any(parts);
        if (!part->isVisible() || part->window() != &window) return;
        const QPoint centre = part->mapTo(&window, part->rect().center());
        const QPoint at = Below(3) > 0 ? centre : Place(window);
        const QPoint to = Below(6) > 0 ? at : Place(window);
        const auto button = Below(12) > 0 ? Qt::LeftButton : Qt::RightButton;
        QWidget* const hit = window.childAt(at);
        if (hit == nullptr) return;
        const char* const kind = hit->parent()->metaObject()->className();
        Note(window, QStringLiteral("mouse on %1 in %2").arg(hit->objectName(), kind));
        if (Below(3) == 0) {
            const QPoint turn(0, 120 - 240 * Below(2));
            QWheelEvent wheel(hit->mapFrom(&window, at), window.mapToGlobal(at), {}, turn, {},
                              Below(9) > 0 ? Qt::NoModifier : Qt::ControlModifier, {}, false);
            QCoreApplication::sendEvent(hit, &wheel);
            return;
        }
        const QPointer<QWindow> target = window.windowHandle();
        const auto send = [&](QEvent::Type type, QPoint place, Qt::MouseButtons held) {
            if (target == nullptr) return;
            const auto changed = type == QEvent::MouseMove ? Qt::NoButton : button;
            const QPointF global = target->mapToGlobal(place);
            qt_handleMouseEvent(target, place, global, held, changed, type, {}, time_ += 10);
        };
        time_ += 1000;  // no double click with the one before
        for (int clicks = Below(6) > 0 ? 1 : 2; clicks > 0; --clicks) {
            send(QEvent::MouseMove, at, {});
            send(QEvent::MouseButtonPress, at, button);
            if (to != at) send(QEvent::MouseMove, to, button);
            send(QEvent::MouseButtonRelease, to, {});
        }
    }

    void End(QWidget& window) {
        static constexpr Qt::Key kKeys[] = {Qt::Key_Escape, Qt::Key_Return, Qt::Key_Enter};
        if (Below(4) > 0) return Press(window, Any(kKeys));
        Note(window, "close request");
        if (window.windowHandle() != nullptr) window.windowHandle()->close();
    }

    static inline const Monkey* current_ = nullptr;

    std::mt19937 random_;
    unsigned seed_;
    int steps_, step_ = 0, time_ = 0;
    QString ownKeys_, acts_[kKept];
    QPointer<QWidget> window_;
    QTimer turns_;
};

}  // namespace halvek
