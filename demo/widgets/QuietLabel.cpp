// SPDX-License-Identifier: MIT
#include "widgets/QuietLabel.h"

#include "widgets/Card.h"

#include <halvekutils/qt/QtText.h>

#include <QPainter>

namespace frontdesk {

namespace {

constexpr int kFewestLetters = 6;

}  // namespace

QuietLabel::QuietLabel(const QString& text) : QLabel(text) {
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void QuietLabel::Warn(bool warn) {
    warns_ = warn;
    update();
}

QSize QuietLabel::minimumSizeHint() const {
    return {fontMetrics().averageCharWidth() * kFewestLetters, fontMetrics().height()};
}

void QuietLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, width());
    const bool isCut = shown != text();
    if (isCut == toolTip().isEmpty()) setToolTip(isCut ? halvek::ToToolTip(text()) : QString());
    const bool isDark = palette().color(QPalette::Base).lightness() < 128;
    painter.setPen(warns_ ? QColor(isDark ? 0xFF8A80 : 0xB3261E) : QuietColor(palette()));
    painter.drawText(rect(),
                     static_cast<int>(Qt::AlignVCenter | (alignment() & Qt::AlignHorizontal_Mask)),
                     shown);
}

}  // namespace frontdesk
