// SPDX-License-Identifier: MIT
#include <halvekutils/currency/ShownAmount.h>
#include <halvekutils/platform/TextField.h>
#include <halvekutils/qt/QtText.h>
#include <halvekutils/qt/currency/CurrencyAsking.h>
#include <halvekutils/qt/currency/CurrencyFilter.h>
#include <halvekutils/qt/currency/CurrencyWatch.h>
#include <halvekutils/qt/helpers/EventGuard.h>
#include <halvekutils/qt/helpers/Keys.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QMenuBar>
#include <QPointer>
#include <QScopedValueRollback>
#include <QSignalBlocker>

#include <utility>

// Leaving a currency field: it shows its amount, checks it and hands it to whoever commits it.

namespace halvek {

namespace {

bool leaving = false;

/// True for an editor that a table closes when its window is no longer active.
bool IsInTable(const QLineEdit& line) {
    const QWidget* const viewport = line.parentWidget();
    return viewport != nullptr && qobject_cast<QAbstractItemView*>(viewport->parent()) != nullptr;
}

bool IsTab(const QKeyEvent& event) {
    return event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab;
}

}  // namespace

bool IsAnyFieldBeingLeft() {
    return leaving;
}

bool EditingGoesOn(Qt::FocusReason reason) {
    return reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason ||
           reason == Qt::MenuBarFocusReason;
}

/// Delegates commit on Tab and on the loss of the focus at once, on Enter by a queued call.
bool CurrencyFilter::FilterFirst(QLineEdit& line, const QEvent& event) {
    if (event.type() == QEvent::FocusOut) {
        return LoseFocus(line, static_cast<const QFocusEvent&>(event).reason());
    }
    if (event.type() != QEvent::KeyPress) return false;
    const auto& key = static_cast<const QKeyEvent&>(event);
    if (!IsEnter(key) && !IsTab(key)) return false;
    const QPointer<CurrencyFilter> self(this);
    if (!LeaveForAct(line) || self == nullptr) return true;
    if (IsTab(key)) {
        HandBack(line);
    } else {
        HandBackSoon();
    }
    return false;
}

/// The focus may move while the window is inactive, and the field gets no event.
void CurrencyFilter::FocusMoved(const QWidget* now) {
    GuardEvent(u"CurrencyField", [&] {
        ShowAgain();
        QLineEdit* const line = Line();
        const bool concernsField = (editing_ || isUnasked_) && !leaving && line != nullptr;
        if (!concernsField || now == nullptr || now == line) return;
        if (now->window() != line->window() || qobject_cast<const QMenuBar*>(now)) return;
        const bool isClick = QApplication::mouseButtons() != Qt::NoButton;
        LoseFocus(*line, isClick ? Qt::MouseFocusReason : Qt::OtherFocusReason);
    });
}

/// True when the field keeps the focus.
bool CurrencyFilter::LoseFocus(QLineEdit& line, Qt::FocusReason reason) {
    const QPointer<CurrencyFilter> self(this);
    if (EditingGoesOn(reason)) {
        if (editing_ && reason == Qt::ActiveWindowFocusReason && IsInTable(line)) Show(line);
        return self == nullptr;
    }
    const QWidget* const next = QApplication::focusWidget();
    if (next != nullptr && next != &line && PassesUnasked(*next)) {
        LeaveUnasked(line);
    } else if (!Leave(line)) {
        if (self == nullptr || !editing_) return self == nullptr;
        if (reason == Qt::MouseFocusReason) CurrencyWatch::OfApplication().RefuseThisPress();
        return true;
    }
    if (self == nullptr) return true;
    isLeft_ = false;
    HandBack(line);
    if (!isUnasked_) CurrencyWatch::OfApplication().Remove(*this);
    return false;
}

/// While the message about a field is open nobody knows whether it may be left. A timer of the
/// host's may ask, or the user in an event loop above the message's.
bool CurrencyFilter::LeaveForAct(QLineEdit& line) {
    return !IsAnyFieldBeingLeft() && Leave(line);
}

/// False when the field refuses to be left.
bool CurrencyFilter::Leave(QLineEdit& line) {
    if (!(editing_ || isUnasked_) || leaving) return true;
    const QPointer<CurrencyFilter> self(this);
    const bool mayLeave = MayLeave(line);
    if (self == nullptr) return true;
    if (mayLeave) {
        EndEditing(line);
    } else {
        Refuse(line);
    }
    return mayLeave;
}

/// Shows the amount but leaves the range unchecked until the focus moves on.
void CurrencyFilter::LeaveUnasked(QLineEdit& line) {
    if (!editing_ || leaving) return;
    const QPointer<CurrencyFilter> self(this);
    Show(line);
    if (self == nullptr) return;
    editing_ = false;
    isUnasked_ = true;
}

bool CurrencyFilter::MayLeave(QLineEdit& line) {
    const QScopedValueRollback isLeaving(leaving, true);
    const QPointer<CurrencyFilter> self(this);
    if (editing_) Show(line);
    if (self == nullptr || (wasLocked_ && line.isReadOnly()) || IsInOrder(line, events_))
        return true;
    if (self != nullptr) Write(line, QString());
    return false;
}

void CurrencyFilter::Show(QLineEdit& line) {
    if (wasLocked_ && line.isReadOnly()) return;
    const QString text = line.text();
    if (text != entered_) given_ = QString();
    const auto field = std::make_shared<TextField>(ForLeaving(text));
    bool cancel = false;
    events_.Leave(field, cancel);
    const QString shown = ToQString(field->Text());
    if (text != shown) Write(line, shown);
}

void CurrencyFilter::Refuse(QLineEdit& line) {
    if (!line.isVisible() || !line.isEnabled()) return EndEditing(line);
    editing_ = true;
    isUnasked_ = false;
    entered_ = line.text();
    given_ = QString();
    const QScopedValueRollback keepsFocus(leaving, true);
    if (!line.hasFocus()) line.setFocus(Qt::OtherFocusReason);
}

/// While the field keeps the focus, the next key replaces the amount; so it is selected.
void CurrencyFilter::EndEditing(QLineEdit& line) {
    editing_ = false;
    isUnasked_ = false;
    isLeft_ = true;
    if (line.hasFocus()) line.selectAll();
}

/// A field that the user only passed through briefly holds the text it was given, so that a
/// delegate commits no change. The host gets no signal, since nothing has changed in the end.
void CurrencyFilter::HandBack(QLineEdit& line) {
    if (editing_ || given_.isNull() || given_ == line.text()) return;
    const QSignalBlocker quiet(line);
    QMetaObject::invokeMethod(this, &CurrencyFilter::ShowAgain, Qt::QueuedConnection);
    isHandedBack_ = true;
    Write(line, given_);
}

void CurrencyFilter::HandBackSoon() {
    const auto handBack = [this] {
        if (QLineEdit* const line = Line()) HandBack(*line);
    };
    QMetaObject::invokeMethod(this, handBack, Qt::QueuedConnection);
}

void CurrencyFilter::ShowAgain() {
    QLineEdit* const line = Line();
    if (!std::exchange(isHandedBack_, false) || line == nullptr) return;
    const QSignalBlocker quiet(line);
    Write(*line, TextShown(given_));
    if (isLeft_ && line->hasFocus()) line->selectAll();
}

}  // namespace halvek
