// SPDX-License-Identifier: MIT
#pragma once

#include "tests/qt/User.h"
#include "tests/stage/Calls.h"

#include <algorithm>
#include <climits>
#include <csignal>
#include <cstdio>
#include <random>

extern "C" [[gnu::weak]] void __sanitizer_set_death_callback(void (*callback)());

namespace halvek {

/// A call of the library that the monkey may make, also while another one is open.
struct MonkeyCall {
    QString name;
    QString ownKeys;  ///< that mean something to its window, pressed often
    std::function<void(class Monkey& monkey, QWidget& owner)> open;
};

/// Uses every window as nobody ever would, in every event loop that runs, until its acts are used
/// up; then it only closes windows. Keys, clicks, drags, absurd wheels and input methods; owners
/// that go, windows that close while they open, quitting, fifty dialogs in each other, new styles,
/// palettes, fonts and style sheets. A process that dies prints the last acts.
class Monkey : public QObject {
  public:
    Monkey(unsigned seed, int acts, std::vector<MonkeyCall> calls)
        : random_(seed), seed_(seed), steps_(acts), calls_(std::move(calls)) {
        current_ = this;
        if (__sanitizer_set_death_callback != nullptr) __sanitizer_set_death_callback(Tell);
        std::signal(SIGABRT, [](int) { Tell(); });
        qApp->installEventFilter(this);
    }
    ~Monkey() override {
        current_ = nullptr;
        Dress("", "Fusion");
        QApplication::setPalette(QPalette());
        QApplication::setFont(font_);
        QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    }
    Q_DISABLE_COPY(Monkey)

    /// Opens calls and plays with them until all acts are done. A quit ends the application's loop;
    /// the next round starts another.
    void Play() {
        QObject::connect(&turns_, &QTimer::timeout, [this] { Turn(); });
        turns_.start(0);
        while (!IsDone() && !::testing::Test::HasFailure()) {
            QTimer::singleShot(0, this, [this] {
                Call();
                QCoreApplication::exit();
            });
            QCoreApplication::exec();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
        turns_.stop();
        owners_.clear();
    }

    bool IsDone() const { return step_ >= steps_; }
    int Step() const { return step_; }
    /// The step of the last click on a list's header, which accepts the typed text as it is.
    int HeaderClicked() const { return headerClicked_; }
    int Below(int count) { return static_cast<int>(random_() % static_cast<unsigned>(count)); }

    /// The seed, the step and the last acts.
    std::string Trail() const {
        QString trail = QStringLiteral("seed %1, step %2").arg(seed_).arg(step_);
        for (int i = std::max(step_ - kKept, 0); i < step_; ++i) trail += "\n  " + acts_[i % kKept];
        return trail.toStdString() + '\n';
    }

    /// Sometimes closes a dialog in the middle of its opening; Qt's own would never return.
    bool eventFilter(QObject* watched, QEvent* event) override {
        auto* const dialog = qobject_cast<QDialog*>(watched);
        const bool opens = event->type() == QEvent::Show && dialog != nullptr;
        if (opens && dialog->objectName().startsWith("frm") && Below(20) == 0) {
            Note(*dialog, "closes while it opens");
            dialog->reject();
        }
        return false;
    }

  private:
    static constexpr int kKept = 20;
    static constexpr int kDeepest = 50;
    static constexpr int kPatientTurns = 3000;

    static void Tell() {
        if (current_ != nullptr) std::fputs(current_->Trail().c_str(), stderr);
        current_ = nullptr;
    }
    template <class List>
    auto Any(const List& list) {
        return std::data(list)[Below(static_cast<int>(std::size(list)))];
    }
    QPoint Place(const QWidget& window) { return {Below(window.width()), Below(window.height())}; }

    /// Opens any call from a host's window, which may go while it is open.
    void Call() {
        const MonkeyCall call = Any(calls_);
        auto owner = std::make_unique<QWidget>();
        owner->setObjectName("owner");
        owner->setGeometry(Below(1000) - 100, Below(800) - 100, 300, 200);
        owner->show();
        QWidget& window = *owner;
        owners_.push_back(std::move(owner));
        const QString keys = std::exchange(ownKeys_, call.ownKeys);
        ++depth_;
        call.open(*this, window);
        --depth_;
        ownKeys_ = keys;
        ASSERT_FALSE(::testing::Test::HasFailure()) << call.name.toStdString() << ", " << Trail();
        if (!owners_.empty() && Below(3) == 0) owners_.pop_back();
    }

    /// A few acts, faster than windows are painted.
    void Turn() {
        QTimer above;  // goes on in the event loop of a dialog that an act opens
        QObject::connect(&above, &QTimer::timeout, [this] { Turn(); });
        above.start(0);
        const QPointer<QWidget> front = Front(nullptr);
        if (front == nullptr) return Wait();
        for (int i = Below(200); i >= 0 && front != nullptr && front == Front(nullptr); --i) {
            if (!HasKeys(*front)) return Activate(*front);
            waits_ = 0;
            Act(*front);
        }
    }

    /// While a menu is open, Qt does not hear which window is active, but sends it the keys.
    static bool HasKeys(const QWidget& window) {
        return window.isActiveWindow() || QGuiApplication::focusWindow() == window.windowHandle();
    }

    /// No window is in front for a few turns, while one opens or closes.
    void Wait() {
        QDrag::cancel();
        if (++waits_ > kPatientTurns) qFatal("a call goes on and no window is shown");
    }

    void Activate(QWidget& window) {
        constexpr int kPatientWaits = 20;
        if (++waits_ > kPatientWaits) window.setWindowState(Qt::WindowNoState);
        if (waits_ > 2 * kPatientWaits) window.close();
        if (waits_ > kPatientTurns) qFatal("a window is never active");
        const QWindow& handle = *window.windowHandle();
        if (!handle.flags().testFlag(Qt::WindowDoesNotAcceptFocus)) window.activateWindow();
    }

    void Act(QWidget& window) {
        if (step_ > steps_ + kPatience) qFatal("a window stays open");
        // Qt's own print dialog, which a key or click would open, is not a subject of these tests.
        if (window.inherits("QPrintPreviewDialog")) {
            return IsDone() || Below(3) > 0 ? Close(window) : Disturb(window);
        }
        const int dice = IsDone() ? 0 : Below(1000);
        if (dice < 8) return End(window);
        if (dice < 20) return Disturb(window);
        if (dice < 60) return UseMouse(window);
        if (dice < 75) return Paste(window);
        if (dice < 85) return Compose(window);
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
        if (act.contains("SelectGridHeader")) headerClicked_ = step_;
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
        const bool isHuge = Below(300) == 0;
        QMimeData* const data = new QMimeData;
        data->setText(isHuge ? QString(50'000'000, 'A') : Any(kTexts));
        if (QWidget* const part = PartOf(window); part != nullptr && Below(3) == 0) {
            Note(window, "drops a text");
            QDragEnterEvent enter({5, 5}, Qt::CopyAction, data, Qt::LeftButton, {});
            QCoreApplication::sendEvent(part, &enter);
            QDropEvent drop({5, 5}, Qt::CopyAction, data, Qt::LeftButton, {});
            if (enter.isAccepted()) QCoreApplication::sendEvent(part, &drop);
            delete data;
            return;
        }
        QApplication::clipboard()->setMimeData(data);
        Press(window, Qt::CTRL | Qt::Key_V);
    }

    /// A control of the window; null if it was none or a hidden one.
    QWidget* PartOf(QWidget& window) {
        const auto parts = window.findChildren<QWidget*>();
        QWidget* const part = parts.isEmpty() ? &window : Any(parts);
        return part->isVisible() && part->window() == &window ? part : nullptr;
    }

    /// What an input method writes before it is sure, then for good; a tool tip; a context menu.
    void Compose(QWidget& window) {
        const QPointer<QWidget> part = PartOf(window);
        if (part == nullptr) return;
        Note(window, "input method, tool tip and menu on " + part->objectName());
        const QPoint at = part->rect().center();
        QInputMethodEvent composing("\u3042", {{QInputMethodEvent::Cursor, 1, 1, {}}});
        QInputMethodEvent done;
        done.setCommitString("1\u3042");
        QHelpEvent tip(QEvent::ToolTip, at, part->mapToGlobal(at));
        QContextMenuEvent menu(QContextMenuEvent::Keyboard, at, part->mapToGlobal(at));
        for (QEvent* const event : std::initializer_list<QEvent*>{&composing, &done, &tip, &menu}) {
            if (part == nullptr) return;
            // Only the line with the focus gets text and opens a menu.
            const bool isLine = qobject_cast<QLineEdit*>(part.data()) != nullptr;
            if (event->type() != QEvent::ToolTip && isLine && !part->hasFocus()) continue;
            QCoreApplication::sendEvent(part, event);
        }
    }

    static void Dress(const QString& sheet, const QString& style) {
        qApp->setStyleSheet(sheet);
        QApplication::setStyle(QStyleFactory::create(style));
    }

    /// What a host or a desktop may do at any time.
    void Disturb(QWidget& window) {
        static const QString kSheets[] = {
            "", "* { font: 14pt; color: red; }",
            "QWidget { background: black; border: 3px solid red }",
            "QPushButton { padding: 9px } QLabel:hover, QTextEdit { font: bold 30pt }",
            "QAbstractScrollArea, QLineEdit { border: none; margin: 40px }"};
        static const QString kStyles[] = {"Fusion", "Windows"};
        static constexpr Qt::WindowState kStates[] = {Qt::WindowMinimized, Qt::WindowMaximized,
                                                      Qt::WindowFullScreen, Qt::WindowNoState};
        const QPointer<QWidget> alive = &window;
        const std::pair<const char*, std::function<void()>> ways[] = {
            {"opens another call",
             [&] {
                 if (depth_ < kDeepest) Call();
             }},
            {"an owner goes",
             [&] {
                 if (!owners_.empty())
                     owners_.erase(owners_.begin() + Below(static_cast<int>(owners_.size())));
             }},
            {"quit", [&] { Below(2) == 0 ? QCoreApplication::quit() : QCoreApplication::exit(1); }},
            {"a style sheet or style", [&] { Dress(Any(kSheets), Any(kStyles)); }},
            {"a palette",
             [&] {
                 QApplication::setPalette(QPalette(QColor(Below(256), Below(256), 0),
                                                   QColor(0, Below(256), Below(256))));
             }},
            {"a font",
             [&] {
                 QFont font = font_;
                 font.setPointSize(6 + Below(30));
                 QApplication::setFont(font);
             }},
            {"moves and grows",
             [&] {
                 window.move(Below(4000) - 2000, Below(4000) - 2000);
                 if (alive != nullptr) window.resize(Below(3000), Below(3000));
             }},
            {"another state", [&] { window.setWindowState(Any(kStates)); }},
            {"right to left or back",
             [&] {
                 QGuiApplication::setLayoutDirection(Below(2) == 0 ? Qt::RightToLeft
                                                                   : Qt::LeftToRight);
             }},
            {"hidden by its host", [&] { window.hide(); }}};
        // Another call as often as three of the others
        const auto& [name, act] = ways[std::max(Below(12) - 2, 0)];
        Note(window, name);
        act();
    }

    /// Clicks, double clicks, drags and wheel turns, on a control or anywhere.
    void UseMouse(QWidget& window) {
        const QWidget* const part = PartOf(window);
        if (part == nullptr) return;
        const QPoint centre = part->mapTo(&window, part->rect().center());
        const QPoint at = Below(3) > 0 ? centre : Place(window);
        const QPoint to = Below(6) > 0 ? at : Place(window);
        const auto button = Below(12) > 0 ? Qt::LeftButton : Qt::RightButton;
        QWidget* const hit = window.childAt(at);
        if (hit == nullptr) return;
        const char* const kind = hit->parent()->metaObject()->className();
        Note(window, QStringLiteral("mouse on %1 in %2").arg(hit->objectName(), kind));
        if (Below(3) == 0) {
            static constexpr int kTurns[] = {120, -120, 120, -120, 1, INT_MAX, INT_MIN};
            const QPoint turn(0, Any(kTurns));
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
        Close(window);
    }

    void Close(QWidget& window) {
        Note(window, "close request");
        if (window.windowHandle() != nullptr) window.windowHandle()->close();
    }

    static inline const Monkey* current_ = nullptr;

    std::mt19937 random_;
    unsigned seed_;
    int steps_, step_ = 0, time_ = 0, depth_ = 0, waits_ = 0, headerClicked_ = -1;
    std::vector<MonkeyCall> calls_;
    std::vector<std::unique_ptr<QWidget>> owners_;
    QString ownKeys_ = "A", acts_[kKept];
    QFont font_ = QApplication::font();
    QTimer turns_;
};

}  // namespace halvek
