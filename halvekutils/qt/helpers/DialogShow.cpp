// SPDX-License-Identifier: MIT
#include <halvekutils/qt/helpers/DialogShow.h>
#include <halvekutils/qt/helpers/WindowOpening.h>

#include <QGuiApplication>
#include <QMouseEvent>
#include <QTimer>
#include <QWindow>

#include <chrono>
#include <utility>

namespace halvek {

DialogShow::DialogShow(QDialog& dialog, std::function<void()> abandon)
    : dialog_(dialog), abandon_(std::move(abandon)) {}

DialogShow::~DialogShow() {
    RestorePointer();
}

void DialogShow::Modal(QWidget* asked, const Place& place) {
    QWidget* const owner = Owner(asked);
    Open(owner, Qt::ApplicationModal, place);
    if (owner != nullptr) {
        connect(owner, &QObject::destroyed, this, [this] { abandon_(); });
    }
    // Qt shows no window without a size, as a host's style sheet may make it; nobody could answer.
    if (!ended_ && dialog_.windowHandle()->isVisible()) loop_.exec();
    abandon_();
}

void DialogShow::Modeless(QWidget* asked, const Place& place) {
    Open(Owner(asked), Qt::NonModal, place);
}

// The loop first: hiding runs the host's event filters, which may throw.
void DialogShow::End() {
    ended_ = true;
    loop_.quit();
    RestorePointer();
    const bool wasActive = dialog_.isActiveWindow();
    Hide();
    WindowOpening::OfApplication().GiveBack(owner_, wasActive);
    if (lastPress_) SwallowSecondClick(*std::exchange(lastPress_, std::nullopt));
}

// What is hidden while Qt shows it comes onto the screen all the same, and the windows that it
// blocks would stay blocked when it is destroyed.
void DialogShow::Hide() {
    dialog_.hide();
    const QWindow* const handle = dialog_.windowHandle();
    if (handle == nullptr || !handle->isVisible()) return;
    dialog_.setAttribute(Qt::WA_WState_Hidden, false);
    dialog_.hide();
}

QWidget* DialogShow::Owner(QWidget* asked) const {
    QWidget* const owner = WindowOpening::OfApplication().Owner(asked);
    return owner == &dialog_ ? nullptr : owner;
}

void DialogShow::Open(QWidget* owner, Qt::WindowModality modality, const Place& place) {
    if (ended_) return;
    owner_ = owner;
    place_ = place;
    dialog_.hide();
    dialog_.setWindowModality(modality);
    // Before the window has a handle: after that, the position would be its inner part's.
    dialog_.move(place_(owner));
    WindowOpening::SetOwner(dialog_, owner);
    ShowArrowPointer();
    dialog_.installEventFilter(this);
    dialog_.winId();  // creates the window handle
    dialog_.windowHandle()->installEventFilter(this);
    corrections_ = 0;
    sinceExposed_.invalidate();
    WindowOpening::OfApplication().Show(dialog_);
    if (dialog_.isHidden()) Hide();
    dialog_.setAttribute(Qt::WA_KeyboardFocusChange);  // shows the focus at once
}

bool DialogShow::eventFilter(QObject* watched, QEvent* event) {
    if (watched == &dialog_ && event->type() == QEvent::Move && dialog_.isVisible()) {
        StandWhereAsked();
    } else if (watched == &dialog_ && event->type() == QEvent::Hide && !event->spontaneous()) {
        // Hidden by the host, it could never be answered.
        const auto abandon = [this] {
            if (!ended_ && dialog_.isHidden()) abandon_();
        };
        QMetaObject::invokeMethod(this, abandon, Qt::QueuedConnection);
    } else if (watched->isWindowType() && event->type() == QEvent::Expose &&
               !sinceExposed_.isValid()) {
        constexpr std::chrono::milliseconds kFramed(100);
        sinceExposed_.start();
        QTimer::singleShot(kFramed, this, [this] { StandWhereAsked(); });
    } else if (watched->isWindowType() && event->type() == QEvent::MouseButtonPress) {
        const auto& press = *static_cast<QMouseEvent*>(event);
        lastPress_ = {press.button(), press.globalPosition(), press.timestamp()};
    }
    return QObject::eventFilter(watched, event);
}

// Some window managers forget their frame when they place a new window. How large it is nobody
// knows before the window has it, at the latest when it is exposed; from then on it is corrected
// only for as long as the user cannot have moved it.
void DialogShow::StandWhereAsked() {
    constexpr qint64 kStillOpening = 500;
    constexpr int kMaxCorrections = 2;
    const QRect frame = WindowOpening::FrameOf(dialog_);
    const bool isFramed = !WindowOpening::MarginsOf(dialog_).isNull();
    if (!isFramed && !sinceExposed_.isValid()) return;
    if (sinceExposed_.isValid() && sinceExposed_.hasExpired(kStillOpening)) return;
    const QPoint corner = place_(owner_);
    if (corrections_ == kMaxCorrections || frame.topLeft() == corner) return;
    ++corrections_;
    dialog_.setGeometry(dialog_.geometry().translated(corner - frame.topLeft()));
}

void DialogShow::ShowArrowPointer() {
    // The host's busy cursor would show over the dialog.
    if (pointerSaved_ || QGuiApplication::overrideCursor() == nullptr) return;
    QGuiApplication::setOverrideCursor(Qt::ArrowCursor);
    pointerSaved_ = true;
}

void DialogShow::RestorePointer() {
    if (std::exchange(pointerSaved_, false)) QGuiApplication::restoreOverrideCursor();
}

}  // namespace halvek
