#include "tour/TourSteps.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>

#include <stdexcept>

namespace frontdesk {

namespace {

QWidget& Find(QWidget& dialog, const QString& name) {
    QWidget* found = name.isEmpty() ? &dialog : dialog.findChild<QWidget*>(name);
    if (found == nullptr || !found->isVisible()) {
        throw std::runtime_error(("there is no " + name + " to use").toStdString());
    }
    return *found;
}

void PostMouse(QWidget& widget, QEvent::Type type, Qt::MouseButtons held) {
    const QPointF at = widget.rect().center();
    QCoreApplication::postEvent(&widget, new QMouseEvent(type, at, widget.mapToGlobal(at),
                                                         Qt::LeftButton, held, Qt::NoModifier));
}

}  // namespace

TourStep Click(const QString& widget, int times) {
    return {[=](QWidget& dialog) {
        QWidget& target = Find(dialog, widget);
        for (int i = 0; i < times; ++i) {
            PostMouse(target, QEvent::MouseButtonPress, Qt::LeftButton);
            PostMouse(target, QEvent::MouseButtonRelease, Qt::NoButton);
        }
        return true;
    }};
}

TourStep PressKey(const QString& widget, Qt::Key key, Qt::KeyboardModifiers modifiers) {
    return {[=](QWidget& dialog) {
        QWidget& target = Find(dialog, widget);
        const QString text = key < 128 && !modifiers ? QString(QChar(key)).toLower() : QString();
        for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QCoreApplication::postEvent(&target, new QKeyEvent(type, key, modifiers, text));
        }
        return true;
    }};
}

TourStep CloseWindow() {
    return {[](QWidget& dialog) {
        QCoreApplication::postEvent(&dialog, new QCloseEvent);
        return true;
    }};
}

TourStep WaitForTitle(const QString& text) {
    return {[=](QWidget& dialog) { return dialog.windowTitle().contains(text); }};
}

}  // namespace frontdesk
