// SPDX-License-Identifier: MIT
#include <halvekutils/qt/helpers/Design.h>
#include <halvekutils/qt/helpers/EventGuard.h>
#include <halvekutils/qt/helpers/FocusRing.h>

#include <QEvent>
#include <QPainter>
#include <QWidget>

namespace halvek {

FocusRing::FocusRing(QWidget& button) : QObject(&button) {
    button.installEventFilter(this);
}

bool FocusRing::eventFilter(QObject* watched, QEvent* event) {
    auto* const button = static_cast<QWidget*>(watched);
    if (event->type() != QEvent::Paint || !button->hasFocus()) return false;
    watched->event(event);
    GuardEvent(u"FocusRing.Paint", [button] {
        QPainter painter(button);
        const QPalette& colors = button->palette();
        design::PaintRing(
            painter, button->rect(),
            design::Visible(colors.color(QPalette::Highlight), colors.color(QPalette::Button)));
    });
    return true;
}

}  // namespace halvek
