// SPDX-License-Identifier: MIT
#include <halvekutils/qt/helpers/InputMethodRefusal.h>

#include <QEvent>
#include <QWidget>

namespace halvek {

InputMethodRefusal::InputMethodRefusal(QWidget& text) : QObject(&text) {
    text.setAttribute(Qt::WA_InputMethodEnabled, false);
    text.installEventFilter(this);
}

bool InputMethodRefusal::eventFilter(QObject*, QEvent* event) {
    if (event->type() != QEvent::InputMethod) return false;
    event->ignore();
    return true;
}

}  // namespace halvek
