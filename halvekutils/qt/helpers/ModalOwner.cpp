// SPDX-License-Identifier: MIT
#include <halvekutils/qt/forms/frmDebug.h>
#include <halvekutils/qt/helpers/ModalOwner.h>

#include <QApplication>
#include <QScreen>
#include <QWidget>
#include <QWindow>

namespace halvek {

QWidget* CurrentOwner() {
    QWidget* const modal = QApplication::activeModalWidget();
    if (modal != nullptr) return modal;
    QWidget* const active = QApplication::activeWindow();
    const auto* const console = qobject_cast<const frmDebug*>(active);
    return console == nullptr ? active : console->HostWindow();
}

QScreen* CurrentScreen() {
    const QWidget* const owner = CurrentOwner();
    return owner != nullptr ? owner->screen() : QGuiApplication::primaryScreen();
}

void SetOwner(QWidget& dialog, QWidget* owner) {
    if (owner == nullptr) return;
    dialog.winId();  // creates the window handle
    dialog.windowHandle()->setTransientParent(owner->window()->windowHandle());
}

QRect CentredPlace(const QSize& outer, const QWidget* owner) {
    const QScreen* const screen = CurrentScreen();
    if (screen == nullptr) return QRect(QPoint(), outer);
    QRect place(QPoint(), outer);
    place.moveCenter(owner != nullptr ? owner->frameGeometry().center()
                                      : screen->availableGeometry().center());
    return Inside(place, screen);
}

QRect Inside(const QRect& place, const QScreen* screen) {
    if (screen == nullptr) return place;
    const QRect usable = screen->availableGeometry();
    QRect inside = place;
    if (inside.right() > usable.right()) inside.moveRight(usable.right());
    if (inside.bottom() > usable.bottom()) inside.moveBottom(usable.bottom());
    if (inside.left() < usable.left()) inside.moveLeft(usable.left());
    if (inside.top() < usable.top()) inside.moveTop(usable.top());
    return inside;
}

}  // namespace halvek
