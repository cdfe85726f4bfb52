// SPDX-License-Identifier: MIT
#include "widgets/PrimaryButton.h"

#include "widgets/Buttons.h"
#include "widgets/Card.h"

#include <QPainter>
#include <QStyle>

namespace frontdesk {

namespace {

constexpr qreal kRadius = 5;
constexpr qreal kRing = 2.5;

}  // namespace

PrimaryButton::PrimaryButton(const QString& text) : QPushButton(text) {
    QFont bold = font();
    bold.setWeight(QFont::DemiBold);
    setFont(bold);
    MakeRoomy(*this);
}

// The text changes with the amount, so the width is not fixed at the start.
QSize PrimaryButton::sizeHint() const {
    constexpr int kPadding = 16;
    return QPushButton::sizeHint() + QSize(kPadding, 0);
}

void PrimaryButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QColor face =
        palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::Highlight);
    if (isDown()) face = face.darker(120);
    if (!isEnabled()) face = Mixed(face, palette().color(QPalette::Window), 45);
    const QRectF box = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.setPen(Qt::NoPen);
    painter.setBrush(underMouse() && isEnabled() ? face.lighter(110) : face);
    painter.drawRoundedRect(box, kRadius, kRadius);
    const QColor text = palette().color(QPalette::HighlightedText);
    if (hasFocus()) {
        painter.setPen(QPen(text, 1.5));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(box.adjusted(kRing, kRing, -kRing, -kRing), kRadius - 2,
                                kRadius - 2);
    }
    painter.setPen(text);
    style()->drawItemText(&painter, rect(), Qt::AlignCenter | Qt::TextShowMnemonic, palette(),
                          isEnabled(), this->text(), QPalette::HighlightedText);
}

}  // namespace frontdesk
