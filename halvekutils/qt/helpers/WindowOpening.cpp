// SPDX-License-Identifier: MIT
#include <halvekutils/qt/forms/frmDebug.h>
#include <halvekutils/qt/helpers/WindowOpening.h>
#include <halvekutils/qt/helpers/XDesktop.h>

#include <QApplication>
#include <QScreen>
#include <QTimer>
#include <QWindow>

#include <algorithm>
#include <chrono>
#include <utility>

namespace halvek {

namespace {

bool IsOnScreen(const QWidget* window) {
    return window != nullptr && window->isVisible() && !window->isMinimized();
}

bool IsConsole(const QWidget* window) {
    return qobject_cast<const frmDebug*>(window) != nullptr;
}

/// Shows a window in the background. Some window managers activate a new window although it asks
/// not to be; they leave alone a window that takes no focus at all, as this one until it is
/// painted.
class BackgroundShow : public QObject {
  public:
    BackgroundShow(QWidget& window, bool asksForAttention)
        : QObject(&window), unheard_(window), asksForAttention_(asksForAttention) {
        const bool before = window.testAttribute(Qt::WA_ShowWithoutActivating);
        window.setAttribute(Qt::WA_ShowWithoutActivating);
        window.windowHandle()->setFlag(Qt::WindowDoesNotAcceptFocus);
        window.installEventFilter(this);
        window.show();
        window.setAttribute(Qt::WA_ShowWithoutActivating, before);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        auto* const window = static_cast<QWidget*>(watched);
        if (event->type() == QEvent::Paint && !std::exchange(isPainted_, true)) {
            window->windowHandle()->setFlag(Qt::WindowDoesNotAcceptFocus, false);
            if (asksForAttention_) QApplication::alert(window);
        }
        const bool isOver =
            event->type() == QEvent::WindowActivate || event->type() == QEvent::Hide;
        if (isOver) deleteLater();
        return false;
    }

  private:
    UnheardActivation unheard_;
    bool asksForAttention_;
    bool isPainted_ = false;
};

}  // namespace

WindowOpening& WindowOpening::OfApplication() {
    static QPointer<WindowOpening> opening;
    if (opening == nullptr) opening = new WindowOpening(qApp);
    return *opening;
}

WindowOpening::WindowOpening(QObject* parent) : QObject(parent) {
    connect(qGuiApp, &QGuiApplication::focusWindowChanged, this, &WindowOpening::FocusMoved);
    FocusMoved(QGuiApplication::focusWindow());
}

void WindowOpening::FocusMoved(QWindow* window) {
    if (window == nullptr) return;
    wasActive_ = true;
    sinceGivenUp_.invalidate();
    if (window->handle() == nullptr) return;
    QWidget* const shown = QWidget::find(window->winId());
    const bool counts = shown != nullptr && !shown->isModal() && !IsConsole(shown) &&
                        shown->windowType() != Qt::Popup;
    if (counts) Remember(*shown->window());
}

void WindowOpening::Remember(QWidget& window) {
    std::erase_if(recent_, [&](const auto& one) { return one == nullptr || one == &window; });
    recent_.insert(recent_.begin(), &window);
}

QWidget* WindowOpening::Owner(QWidget* asked) const {
    if (QWidget* const modal = QApplication::activeModalWidget()) return modal;
    QWidget* const active = QApplication::activeWindow();
    if (active != nullptr && !IsConsole(active)) return active;
    if (IsOnScreen(asked)) return asked->window();
    return LastActive();
}

QWidget* WindowOpening::LastActive() const {
    const auto found = std::ranges::find_if(recent_, IsOnScreen, &QPointer<QWidget>::data);
    return found == recent_.end() ? nullptr : found->data();
}

QScreen* WindowOpening::Screen() const {
    const QWidget* const owner = Owner();
    return owner != nullptr ? owner->screen() : QGuiApplication::primaryScreen();
}

// With one screen Qt reads the work area itself, with several it does not.
QRect WindowOpening::UsableArea(const QScreen* screen) {
    if (screen == nullptr) return {};
    const QRect available = screen->availableGeometry();
    return QGuiApplication::screens().size() < 2 ? available : available & WorkAreaOf(*screen);
}

QRect WindowOpening::Centred(const QSize& outer, const QWidget* owner) const {
    const QScreen* const screen = owner != nullptr ? owner->screen() : Screen();
    QRect place(QPoint(), outer);
    place.moveCenter(owner != nullptr ? FrameOf(*owner).center() : UsableArea(screen).center());
    return Inside(place, screen);
}

// A widget keeps the first margins that it hears of. While the window manager makes the frame, they
// may be nonsense; the window asks again.
QMargins WindowOpening::MarginsOf(const QWidget& window) {
    const QWindow* const handle = window.windowHandle();
    return handle == nullptr ? QMargins() : handle->frameMargins();
}

QRect WindowOpening::FrameOf(const QWidget& window) {
    const QWindow* const handle = window.windowHandle();
    return handle == nullptr ? window.geometry() : handle->frameGeometry();
}

// A window manager reports frame sizes only for windows on the screen.
QSize WindowOpening::FrameSize() {
    constexpr QSize kTypical(8, 30);
    const QWidget* const owner = OfApplication().Owner();
    const QMargins margins = owner == nullptr ? QMargins() : MarginsOf(*owner);
    const QSize added = QSize(0, 0).grownBy(margins);
    return added.height() > 0 ? added : kTypical;
}

QRect WindowOpening::Inside(const QRect& place, const QScreen* screen) {
    if (screen == nullptr) return place;
    const QRect usable = UsableArea(screen);
    QRect inside = place;
    if (inside.right() > usable.right()) inside.moveRight(usable.right());
    if (inside.bottom() > usable.bottom()) inside.moveBottom(usable.bottom());
    if (inside.left() < usable.left()) inside.moveLeft(usable.left());
    if (inside.top() < usable.top()) inside.moveTop(usable.top());
    return inside;
}

void WindowOpening::SetOwner(QWidget& window, const QWidget* owner) {
    if (owner == nullptr) return;
    window.winId();  // creates the window handle
    window.windowHandle()->setTransientParent(owner->window()->windowHandle());
}

void WindowOpening::Show(QWidget& window) {
    if (MayActivate()) {
        const bool wasShown = window.isVisible();
        window.show();
        if (wasShown) window.raise();
        window.activateWindow();
        return;
    }
    if (window.isVisible()) {
        QApplication::alert(&window);
    } else {
        window.winId();  // creates the window handle
        new BackgroundShow(window, true);
    }
}

void WindowOpening::ShowInBackground(QWidget& window) {
    window.winId();  // creates the window handle
    new BackgroundShow(window, false);
}

void WindowOpening::GiveBack(QWidget* owner, bool wasActive) {
    if (owner != nullptr && !owner->isModal()) Remember(*owner);
    if (!wasActive) return;
    sinceGivenUp_.start();
    // Not every window manager gives the keyboard back.
    if (owner == nullptr) return;
    owner->activateWindow();
    if (QGuiApplication::platformName() != QLatin1String("xcb")) return;
    constexpr int kChecks = 10;
    CheckGivenBack(owner, kChecks);
}

/// Qt takes a dialog for active as soon as it asks for that. One that is answered and gone before
/// the window manager has moved the keyboard leaves the keyboard where it was, which Qt does not
/// hear: no window would seem active. And a window manager may lose the keyboard on the way.
void WindowOpening::CheckGivenBack(const QPointer<QWidget>& owner, int checks) {
    constexpr std::chrono::milliseconds kPatience(100);
    QTimer::singleShot(kPatience, this, [this, owner, checks] {
        const QWidget* const modal = QApplication::activeModalWidget();
        const bool isNext = IsOnScreen(owner) && (modal == nullptr || modal == owner);
        if (isNext && QGuiApplication::focusWindow() == nullptr) {
            if (HasKeyboard(*owner)) {
                TellOfKeyboard(*owner);
            } else if (!IsOtherProgramActive()) {
                owner->activateWindow();
            }
        }
        if (checks > 1) CheckGivenBack(owner, checks - 1);
    });
}

/// A program's first windows are activated as its window manager likes. Between two dialogs of one
/// conversation the keyboard may be anywhere for a moment.
bool WindowOpening::MayActivate() const {
    constexpr qint64 kHandOver = 1000;
    if (!wasActive_ || QGuiApplication::focusWindow() != nullptr) return true;
    if (sinceGivenUp_.isValid() && !sinceGivenUp_.hasExpired(kHandOver)) return true;
    return !IsOtherProgramActive();
}

}  // namespace halvek
