// SPDX-License-Identifier: MIT
#include "tour/TourSteps.h"

#include <QAbstractItemView>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QTableView>

#include <stdexcept>

namespace frontdesk {

namespace {

template <class Widget = QWidget>
Widget& Find(QWidget& dialog, const QString& name) {
    auto* found = name.isEmpty() ? qobject_cast<Widget*>(&dialog) : dialog.findChild<Widget*>(name);
    if (found == nullptr || !found->isVisible()) {
        throw std::runtime_error(("there is no " + name + " to use").toStdString());
    }
    return *found;
}

void PostClick(QWidget& widget, const QPointF& at) {
    const auto post = [&](QEvent::Type type, Qt::MouseButtons held) {
        QCoreApplication::postEvent(&widget, new QMouseEvent(type, at, widget.mapToGlobal(at),
                                                             Qt::LeftButton, held, Qt::NoModifier));
    };
    post(QEvent::MouseButtonPress, Qt::LeftButton);
    post(QEvent::MouseButtonRelease, Qt::NoButton);
}

void PostKey(QWidget& widget, int key, Qt::KeyboardModifiers modifiers, const QString& text) {
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QCoreApplication::postEvent(&widget, new QKeyEvent(type, key, modifiers, text));
    }
}

}  // namespace

TourStep Click(const QString& widget, int times) {
    return {[=](QWidget& dialog) {
        QWidget& target = Find(dialog, widget);
        for (int i = 0; i < times; ++i) PostClick(target, target.rect().center());
        return true;
    }};
}

TourStep PressKey(const QString& widget, Qt::Key key, Qt::KeyboardModifiers modifiers) {
    return {[=](QWidget& dialog) {
        const QString text = key < 128 && !modifiers ? QString(QChar(key)).toLower() : QString();
        PostKey(Find(dialog, widget), key, modifiers, text);
        return true;
    }};
}

TourStep TypeText(const QString& widget, const QString& text) {
    return {[=](QWidget& dialog) {
        QWidget& target = Find(dialog, widget);
        for (const QChar letter : text) {
            PostKey(target, letter.toUpper().unicode(), Qt::NoModifier, letter);
        }
        return true;
    }};
}

TourStep ClickCell(const QString& grid, int row, int column) {
    return {[=](QWidget& dialog) {
        auto& view = Find<QAbstractItemView>(dialog, grid);
        const QRect cell = view.visualRect(view.model()->index(row, column));
        PostClick(*view.viewport(), cell.center());
        return true;
    }};
}

TourStep ClickHeading(const QString& table) {
    return {[=](QWidget& dialog) {
        QWidget& heading = *Find<QTableView>(dialog, table).horizontalHeader()->viewport();
        PostClick(heading, heading.rect().center());
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
