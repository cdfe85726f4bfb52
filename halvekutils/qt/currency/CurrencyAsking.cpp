// SPDX-License-Identifier: MIT
#include <halvekutils/qt/currency/CurrencyAsking.h>
#include <halvekutils/qt/helpers/Keys.h>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QMenu>
#include <QMouseEvent>
#include <QShortcut>
#include <QToolButton>

namespace halvek {

namespace {

bool RejectsOrHelps(const QAbstractButton& button) {
    for (QWidget* parent = button.parentWidget(); parent; parent = parent->parentWidget()) {
        const auto* const box = qobject_cast<QDialogButtonBox*>(parent);
        if (box == nullptr) continue;
        const auto role = box->buttonRole(const_cast<QAbstractButton*>(&button));
        return role == QDialogButtonBox::RejectRole || role == QDialogButtonBox::HelpRole;
    }
    return false;
}

/// The window of a control; a floating tool bar belongs to the window it came from.
const QWidget* WindowOf(const QWidget& control) {
    const QWidget* const window = control.window();
    const bool floats = window->windowType() == Qt::Tool && window->parentWidget() != nullptr;
    return floats ? window->parentWidget()->window() : window;
}

QAction* ChosenByKey(const QMenu& menu, const QKeyEvent& event) {
    if (IsEnter(event) || event.key() == Qt::Key_Space) return menu.activeAction();
    QAction* chosen = nullptr;
    for (QAction* const action : menu.actions()) {
        const QKeySequence mnemonic = QKeySequence::mnemonic(action->text());
        if (!action->isVisible() || mnemonic.isEmpty()) continue;
        if (mnemonic[0].key() != event.key()) continue;
        if (chosen != nullptr) return nullptr;  // the key only moves between them
        chosen = action;
    }
    return chosen;
}

/// True when an event makes a menu trigger an action that may save.
bool TriggersAction(const QMenu& menu, const QEvent& event) {
    // A field's own menu acts inside the field.
    if (qobject_cast<const QLineEdit*>(menu.parentWidget()) != nullptr) return false;
    const QAction* const action =
        event.type() == QEvent::KeyPress
            ? ChosenByKey(menu, static_cast<const QKeyEvent&>(event))
            : menu.actionAt(static_cast<const QMouseEvent&>(event).position().toPoint());
    return action != nullptr && action->isEnabled() && !action->isSeparator() &&
           action->menu() == nullptr && !PassesUnasked(*action);
}

/// True when a press on a button may lead to a click. The right mouse button shows a menu.
bool PressesButton(const QAbstractButton& button, const QEvent& event) {
    const bool isShortcut = event.type() == QEvent::Shortcut;
    return button.isEnabled() && !PassesUnasked(button) &&
           (isShortcut || static_cast<const QMouseEvent&>(event).button() == Qt::LeftButton);
}

/// True for the shortcut of an action, or a shortcut object of the host's.
bool IsCommand(const QObject& receiver, const QEvent& event) {
    const bool isOne = qobject_cast<const QAction*>(&receiver) != nullptr ||
                       qobject_cast<const QShortcut*>(&receiver) != nullptr;
    return isOne && event.type() == QEvent::Shortcut && !PassesUnasked(receiver);
}

}  // namespace

bool PassesUnasked(const QObject& control) {
    const QVariant causes = control.property("causesValidation");
    if (causes.isValid()) return !causes.toBool();
    const auto* const tool = qobject_cast<const QToolButton*>(&control);
    if (tool != nullptr && tool->defaultAction()) return PassesUnasked(*tool->defaultAction());
    const auto* const button = qobject_cast<const QAbstractButton*>(&control);
    return button != nullptr && RejectsOrHelps(*button);
}

const QWidget* WindowAskedBy(const QObject& receiver, const QEvent& event) {
    switch (event.type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
        case QEvent::Shortcut:
            if (const auto* button = qobject_cast<const QAbstractButton*>(&receiver)) {
                return PressesButton(*button, event) ? WindowOf(*button) : nullptr;
            }
            return IsCommand(receiver, event) ? QApplication::activeWindow() : nullptr;
        case QEvent::MouseButtonRelease:
        case QEvent::KeyPress:
            if (const auto* menu = qobject_cast<const QMenu*>(&receiver)) {
                return TriggersAction(*menu, event) ? QApplication::activeWindow() : nullptr;
            }
            return nullptr;
        default:
            return nullptr;
    }
}

}  // namespace halvek
