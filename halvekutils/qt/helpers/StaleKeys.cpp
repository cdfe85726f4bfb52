// SPDX-License-Identifier: MIT
#include <halvekutils/qt/helpers/EventGuard.h>
#include <halvekutils/qt/helpers/StaleKeys.h>

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>
#include <QWindow>

namespace halvek {

namespace {

/// The physical key, whatever the modifiers; 0 for events that programs send.
quint32 PlaceOf(const QKeyEvent& key) {
    const quint32 scanCode = key.nativeScanCode();
    return scanCode != 0 ? scanCode : static_cast<quint32>(key.key());
}

}  // namespace

// On the application: Qt asks the control for accelerators before the window sees the key.
StaleKeys::StaleKeys(QWidget& window) : QObject(&window), window_(window) {
    QCoreApplication::instance()->installEventFilter(this);
}

bool StaleKeys::eventFilter(QObject* watched, QEvent* event) {
    const QEvent::Type type = event->type();
    if (type == QEvent::WindowActivate && watched == &window_) pressedHere_.clear();
    const bool isPress = type == QEvent::KeyPress || type == QEvent::ShortcutOverride;
    if ((!isPress && type != QEvent::KeyRelease) || !IsOfWindow(watched)) return false;
    bool dropped = false;
    GuardEvent(u"StaleKeys.KeyPress", [&] {
        const auto& key = *static_cast<const QKeyEvent*>(event);
        if (isPress) {
            dropped = Drops(key);
        } else {
            released_ = {PlaceOf(key), key.timestamp()};
        }
    });
    if (dropped) event->accept();
    return dropped;
}

bool StaleKeys::IsOfWindow(const QObject* receiver) const {
    if (receiver->isWidgetType()) {
        return static_cast<const QWidget*>(receiver)->window() == &window_;
    }
    return receiver == window_.windowHandle();
}

bool StaleKeys::Drops(const QKeyEvent& key) {
    if (IsRepeated(key)) return !pressedHere_.contains(PlaceOf(key));
    pressedHere_.insert(PlaceOf(key));
    return false;
}

// X11 reports a repetition as a release and a press with the same time. Qt marks it as one only if
// the press has arrived when Qt reads the release, which is seldom so in a window that has just
// opened.
bool StaleKeys::IsRepeated(const QKeyEvent& key) const {
    if (key.isAutoRepeat()) return true;
    return key.timestamp() != 0 && released_.place == PlaceOf(key) &&
           released_.time == key.timestamp();
}

}  // namespace halvek
