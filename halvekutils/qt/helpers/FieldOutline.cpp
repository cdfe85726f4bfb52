// SPDX-License-Identifier: MIT
#include <halvekutils/qt/helpers/Design.h>
#include <halvekutils/qt/helpers/EventGuard.h>
#include <halvekutils/qt/helpers/FieldOutline.h>

#include <QApplication>
#include <QEvent>
#include <QPainter>
#include <QWidget>

namespace halvek {

FieldOutline::FieldOutline(QWidget& field) : QObject(&field) {
    field.installEventFilter(this);
}

// The field's own palette may be that of paper.
bool FieldOutline::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::Paint) return false;
    if (!design::IsHighContrast()) return false;
    watched->event(event);
    GuardEvent(u"FieldOutline.Paint", [watched] {
        auto* const field = static_cast<QWidget*>(watched);
        QPainter painter(field);
        const auto role = field->hasFocus() ? QPalette::Highlight : QPalette::WindowText;
        painter.setPen(QPen(QApplication::palette().color(role), 2));
        painter.drawRect(field->rect().adjusted(1, 1, -1, -1));
    });
    return true;
}

}  // namespace halvek
