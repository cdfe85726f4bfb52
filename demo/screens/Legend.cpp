// SPDX-License-Identifier: MIT
#include "screens/Legend.h"

#include "widgets/Card.h"
#include "widgets/RequiredColor.h"

#include <QPainter>

namespace frontdesk {

namespace {

constexpr int kDot = 10;

}  // namespace

Legend::Legend(const ScheduleModel& model) : model_(model) {
    setAccessibleName("Colours of the reasons");
}

QSize Legend::sizeHint() const {
    return {0, fontMetrics().height()};
}

// From the right, whole entries only
void Legend::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    int right = width();
    const auto& reasons = model_.Reasons();
    for (auto reason = reasons.rbegin(); reason != reasons.rend(); ++reason) {
        const int text = fontMetrics().horizontalAdvance(reason->description);
        const int left = right - text - kDot - 6;
        if (left < 0) return;
        painter.setPen(Qt::NoPen);
        painter.setBrush(ToQColor(reason->color));
        painter.drawRoundedRect(QRectF(left, (height() - kDot) / 2.0, kDot, kDot), 3, 3);
        painter.setPen(QuietColor(palette()));
        painter.drawText(QRect(left + kDot + 6, 0, text + 1, height()), Qt::AlignVCenter,
                         reason->description);
        right = left - kMargin;
    }
}

}  // namespace frontdesk
