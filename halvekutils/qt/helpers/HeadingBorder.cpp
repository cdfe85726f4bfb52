// SPDX-License-Identifier: MIT
#include <halvekutils/qt/helpers/EventGuard.h>
#include <halvekutils/qt/helpers/HeadingBorder.h>

#include <QEvent>
#include <QPainter>
#include <QWidget>

namespace halvek {

namespace {

/// A colour that contrasts with the form under the label.
QColor LineColor(const QWidget& label) {
    const QWidget* const form = label.parentWidget();
    return (form == nullptr ? label : *form).palette().color(QPalette::WindowText);
}

}  // namespace

HeadingBorder::HeadingBorder(QWidget& label) : QObject(&label) {
    label.installEventFilter(this);
}

bool HeadingBorder::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::Paint) return QObject::eventFilter(watched, event);
    watched->event(event);
    GuardEvent(u"HeadingBorder.Paint", [&] {
        auto* const label = static_cast<QWidget*>(watched);
        QPainter painter(label);
        painter.setPen(LineColor(*label));
        painter.drawRect(label->rect().adjusted(0, 0, -1, -1));
    });
    return true;
}

void SetHeadingBorder(QWidget& control, bool on) {
    auto* const border = control.findChild<HeadingBorder*>({}, Qt::FindDirectChildrenOnly);
    if (on == (border != nullptr)) return;
    if (on) {
        new HeadingBorder(control);
    } else {
        delete border;
    }
    control.update();
}

}  // namespace halvek
