// SPDX-License-Identifier: MIT
#include <halvekutils/qt/helpers/SecondClick.h>

#include <QGuiApplication>
#include <QMouseEvent>
#include <QStyleHints>

#include <cmath>

namespace halvek {

namespace {

bool IsDoubleClick(const MousePress& first, const QMouseEvent& second) {
    const QStyleHints& hints = *QGuiApplication::styleHints();
    const QPointF moved = second.globalPosition() - first.place;
    const double farthest = hints.mouseDoubleClickDistance();
    return second.button() == first.button && std::abs(moved.x()) <= farthest &&
           std::abs(moved.y()) <= farthest &&
           second.timestamp() - first.time < static_cast<quint64>(hints.mouseDoubleClickInterval());
}

/// Lives until the next press or, if it swallows that, until the button is released.
class SecondClick : public QObject {
  public:
    explicit SecondClick(const MousePress& first) : QObject(qApp), first_(first) {
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (!watched->isWindowType()) return false;
        switch (event->type()) {
            case QEvent::MouseButtonPress:
                swallows_ = !swallows_ && IsDoubleClick(first_, static_cast<QMouseEvent&>(*event));
                if (!swallows_) End();
                return swallows_;
            case QEvent::MouseButtonDblClick:
                return swallows_;
            case QEvent::MouseButtonRelease:
                if (swallows_) End();
                return swallows_;
            default:
                return false;
        }
    }

  private:
    void End() {
        qApp->removeEventFilter(this);
        deleteLater();
    }

    MousePress first_;
    bool swallows_ = false;
};

}  // namespace

void SwallowSecondClick(const MousePress& first) {
    new SecondClick(first);
}

}  // namespace halvek
