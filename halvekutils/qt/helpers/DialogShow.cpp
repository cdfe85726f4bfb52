// SPDX-License-Identifier: MIT
#include <halvekutils/qt/helpers/DialogShow.h>
#include <halvekutils/qt/helpers/ModalOwner.h>

#include <QGuiApplication>
#include <QMouseEvent>
#include <QWindow>

#include <utility>

namespace halvek {

DialogShow::DialogShow(QDialog& dialog, std::function<void()> abandon)
    : dialog_(dialog), abandon_(std::move(abandon)) {}

DialogShow::~DialogShow() {
    RestorePointer();
}

void DialogShow::Modal(const Place& place) {
    QWidget* const owner = Owner();
    Open(owner, Qt::ApplicationModal, place);
    if (owner != nullptr) {
        connect(owner, &QObject::destroyed, this, [this] { abandon_(); });
    }
    if (!ended_) loop_.exec();
    abandon_();
}

void DialogShow::Modeless(const Place& place) {
    Open(Owner(), Qt::NonModal, place);
}

void DialogShow::End() {
    ended_ = true;
    RestorePointer();
    const bool wasActive = dialog_.isActiveWindow();
    dialog_.hide();
    // Not every window manager gives the keyboard back.
    if (wasActive && owner_ != nullptr) owner_->activateWindow();
    if (lastPress_) SwallowSecondClick(*std::exchange(lastPress_, std::nullopt));
    loop_.quit();
}

QWidget* DialogShow::Owner() const {
    QWidget* const current = CurrentOwner();
    return current == &dialog_ ? nullptr : current;
}

void DialogShow::Open(QWidget* owner, Qt::WindowModality modality, const Place& place) {
    owner_ = owner;
    dialog_.hide();
    dialog_.setWindowModality(modality);
    // Before the window has a handle: after that, the position would be its inner part's.
    corner_ = place(owner);
    dialog_.move(corner_);
    SetOwner(dialog_, owner);
    ShowArrowPointer();
    dialog_.installEventFilter(this);
    placed_ = false;
    sinceShown_.start();
    dialog_.show();
    dialog_.windowHandle()->installEventFilter(this);
    dialog_.setAttribute(Qt::WA_KeyboardFocusChange);  // shows the focus at once
    dialog_.activateWindow();
}

bool DialogShow::eventFilter(QObject* watched, QEvent* event) {
    if (watched == &dialog_ && event->type() == QEvent::Move && dialog_.isVisible()) {
        StandWhereAsked();
    } else if (watched->isWindowType() && event->type() == QEvent::MouseButtonPress) {
        const auto& press = *static_cast<QMouseEvent*>(event);
        lastPress_ = {press.button(), press.globalPosition().toPoint(), press.timestamp()};
    }
    return QObject::eventFilter(watched, event);
}

// Some window managers forget their frame when they place a new window. The first move event shows
// where it is; it is corrected once.
void DialogShow::StandWhereAsked() {
    constexpr qint64 kStillOpening = 500;
    if (std::exchange(placed_, true)) return;
    const bool opening = sinceShown_.elapsed() < kStillOpening;
    if (opening && dialog_.frameGeometry().topLeft() != corner_) dialog_.move(corner_);
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
