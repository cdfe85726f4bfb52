// SPDX-License-Identifier: MIT
#include <halvekutils/qt/currency/CurrencyAsking.h>
#include <halvekutils/qt/currency/CurrencyFilter.h>
#include <halvekutils/qt/currency/CurrencyWatch.h>
#include <halvekutils/qt/helpers/EventGuard.h>

#include <QApplication>
#include <QContextMenuEvent>

#include <algorithm>
#include <utility>

namespace halvek {

namespace {

/// A cheap test first: most events concern no field, and there are many.
bool MayConcernFields(QEvent::Type type) {
    switch (type) {
        case QEvent::ContextMenu:
        case QEvent::FocusOut:
        case QEvent::KeyPress:
        case QEvent::MouseButtonDblClick:
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::Shortcut:
            return true;
        default:
            return false;
    }
}

bool IsPress(const QEvent& event) {
    return event.type() == QEvent::MouseButtonPress || event.type() == QEvent::MouseButtonDblClick;
}

}  // namespace

CurrencyWatch& CurrencyWatch::OfApplication() {
    static QPointer<CurrencyWatch> watch;
    if (watch == nullptr) watch = new CurrencyWatch(qApp);
    return *watch;
}

CurrencyWatch::CurrencyWatch(QObject* parent) : QObject(parent) {
    qApp->installEventFilter(this);
}

void CurrencyWatch::Add(CurrencyFilter& field) {
    Remove(field);
    fields_.emplace_back(&field);
}

void CurrencyWatch::Remove(const CurrencyFilter& field) {
    std::erase_if(fields_, [&](const auto& one) { return one == nullptr || one == &field; });
}

void CurrencyWatch::RefuseThisPress() {
    QMetaObject::invokeMethod(
        this, [this] { refusesPress_ = false; }, Qt::QueuedConnection);
    refusesPress_ = true;
}

bool CurrencyWatch::eventFilter(QObject* watched, QEvent* event) {
    if (fields_.empty() || !MayConcernFields(event->type())) return false;
    const QPointer<QObject> alive(watched);
    bool taken = false;
    GuardEvent(u"CurrencyField", [&] { taken = Filter(*watched, *event); });
    return taken || alive == nullptr;
}

/// A click that a field has refused, and the menu that the click would open.
bool CurrencyWatch::IsRefused(const QEvent& event) {
    if (IsPress(event)) return refusesMenu_ = std::exchange(refusesPress_, false);
    const bool isMenu =
        event.type() == QEvent::ContextMenu &&
        static_cast<const QContextMenuEvent&>(event).reason() == QContextMenuEvent::Mouse;
    return isMenu && std::exchange(refusesMenu_, false);
}

/// True when the receiver must not see the event.
bool CurrencyWatch::Filter(QObject& watched, QEvent& event) {
    if (watched.isWidgetType() && IsRefused(event)) return true;
    const QWidget* const asked = WindowAskedBy(watched, event);
    for (const QPointer<CurrencyFilter>& field : Fields()) {
        QLineEdit* const line = field != nullptr ? field->Line() : nullptr;
        if (line == nullptr) continue;
        if (line == &watched && field->FilterFirst(*line, event)) return true;
        const bool isItsOwn = line == watched.parent();  // the button that clears it, say
        if (line->window() != asked || isItsOwn) continue;
        if (!field->LeaveForAct(*line)) return true;
    }
    return false;
}

}  // namespace halvek
