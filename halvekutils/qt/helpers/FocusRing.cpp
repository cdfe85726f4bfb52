// SPDX-License-Identifier: MIT
#include <halvekutils/qt/helpers/Design.h>
#include <halvekutils/qt/helpers/EventGuard.h>
#include <halvekutils/qt/helpers/FocusRing.h>
#include <halvekutils/qt/helpers/KeptPicture.h>

#include <QEvent>
#include <QPainter>
#include <QWidget>

namespace halvek {

namespace {

constexpr int kOutline = 60;  // per cent of the caption's colour

/// Whether nobody can tell a button from the window: styles outline it with a darker tone, which
/// black does not have.
bool IsLostOn(const QColor& window, const QColor& face) {
    constexpr int kNearlyBlack = 32;
    constexpr double kLeastContrast = 1.2;
    return window.lightness() < kNearlyBlack && design::Contrast(window, face) < kLeastContrast;
}

}  // namespace

FocusRing::FocusRing(QWidget& button) : QObject(&button) {
    button.installEventFilter(this);
}

bool FocusRing::eventFilter(QObject* watched, QEvent* event) {
    auto* const button = static_cast<QWidget*>(watched);
    if (event->type() != QEvent::Paint) return false;
    const QPalette& colors = button->palette();
    const QColor face = colors.color(QPalette::Button);
    const bool isLost = design::IsHighContrast() || IsLostOn(colors.color(QPalette::Window), face);
    if (!button->hasFocus() && !isLost) return false;
    watched->event(event);
    GuardEvent(u"FocusRing.Paint", [button, &colors, &face] {
        QPainter painter(button);
        if (button->hasFocus()) {
            const QColor ring = design::Visible(colors.color(QPalette::Highlight), face);
            DrawKept(painter, button->rect(), QLatin1String("ring"), ring.rgba(),
                     [&](QPainter& picture) { design::PaintRing(picture, button->rect(), ring); });
        } else {
            painter.setPen(design::Blended(colors.color(QPalette::ButtonText), face, kOutline));
            painter.drawRect(button->rect().adjusted(0, 0, -1, -1));
        }
    });
    return true;
}

}  // namespace halvek
