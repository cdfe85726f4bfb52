// SPDX-License-Identifier: MIT
#include "FocusRecord.h"

#include "Page.h"

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

#include <utility>

namespace frontdesk {

namespace {

template <class... Kind>
bool IsAnyOf(const QWidget& widget) {
    return ((qobject_cast<const Kind*>(&widget) != nullptr) || ...);
}

/// A control that holds no other controls, only its own parts.
bool IsWhole(const QWidget& widget) {
    return IsAnyOf<QAbstractButton, QComboBox, QAbstractSpinBox, QLineEdit, QPlainTextEdit,
                   QAbstractItemView>(widget);
}

bool IsCheckableBox(const QWidget& widget) {
    const auto* box = qobject_cast<const QGroupBox*>(&widget);
    return box != nullptr && box->isCheckable();
}

QList<const QWidget*> ControlsOf(const Page& page) {
    QList<const QWidget*> controls;
    for (const QWidget* widget : page.findChildren<QWidget*>()) {
        const bool isControl = IsWhole(*widget) || IsCheckableBox(*widget);
        if (!isControl || IsWhole(*widget->parentWidget())) continue;
        if (widget->isVisible() && widget->isEnabled()) controls << widget;
    }
    return controls;
}

const Page* PageOf(const QWidget* widget) {
    while (widget != nullptr && dynamic_cast<const Page*>(widget) == nullptr) {
        widget = widget->parentWidget();
    }
    return dynamic_cast<const Page*>(widget);
}

QString NameOf(const QWidget& control) {
    if (!control.accessibleName().isEmpty()) return control.accessibleName();
    const auto* button = qobject_cast<const QAbstractButton*>(&control);
    return button == nullptr ? "(no name)" : QString(button->text()).remove('&');
}

QString PlaceOf(const QWidget& control) {
    const Page* page = PageOf(&control);
    if (page == nullptr) return control.window()->windowTitle();
    const QList<const QWidget*> controls = ControlsOf(*page);
    const qsizetype number = controls.indexOf(&control) + 1;
    return QString("%1 %2/%3").arg(page->Title()).arg(number).arg(controls.size());
}

}  // namespace

FocusRecord::FocusRecord(Listener listener) : listener_(std::move(listener)) {
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, const QWidget* focused) {
        if (focused != nullptr) Note(*focused);
    });
}

void FocusRecord::Note(const QWidget& focused) const {
    listener_(PlaceOf(focused) + ": " + NameOf(focused));
}

}  // namespace frontdesk
