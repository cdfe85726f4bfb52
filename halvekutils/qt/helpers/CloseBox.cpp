// SPDX-License-Identifier: MIT
#include <halvekutils/qt/helpers/CloseBox.h>

#include <QEvent>
#include <QWidget>
#include <QWindow>

namespace halvek {

CloseRefusal::CloseRefusal(QWidget& window) : QObject(&window) {
    window.installEventFilter(this);
}

bool CloseRefusal::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::Close || !event->spontaneous()) return false;
    if (static_cast<QWidget*>(watched)->windowFlags() & Qt::WindowCloseButtonHint) return false;
    event->ignore();
    return true;
}

void RemoveCloseBox(QWidget& window) {
    // Not setWindowFlags, which hides the window and so ends its modal loop.
    const Qt::WindowFlags flags = window.windowFlags() | Qt::CustomizeWindowHint;
    window.overrideWindowFlags(flags & ~Qt::WindowCloseButtonHint);
    if (QWindow* const handle = window.windowHandle()) handle->setFlags(window.windowFlags());
    if (window.findChild<CloseRefusal*>({}, Qt::FindDirectChildrenOnly) == nullptr) {
        new CloseRefusal(window);
    }
}

}  // namespace halvek
