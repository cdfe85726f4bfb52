// SPDX-License-Identifier: MIT
#include "widgets/Card.h"

#include <QPainter>

namespace frontdesk {

namespace {

constexpr qreal kRadius = 8;

}  // namespace

Card::Card(const QString& heading) : content_(new QVBoxLayout(this)) {
    content_->setContentsMargins(kMargin, kMargin - 4, kMargin, kMargin);
    content_->setSpacing(kGap);
    if (heading.isEmpty()) return;
    QLabel* label = MakeNote(heading);
    QFont bold = label->font();
    bold.setWeight(QFont::DemiBold);
    label->setFont(bold);
    content_->addWidget(label);
}

void Card::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(OutlineColor(palette()));
    painter.setBrush(palette().base());
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), kRadius, kRadius);
}

QLabel* MakeNote(const QString& text) {
    auto* note = new QLabel(text);
    note->setTextFormat(Qt::PlainText);
    note->setWordWrap(true);
    QPalette palette = note->palette();
    palette.setColor(QPalette::WindowText, QuietColor(palette));
    note->setPalette(palette);
    return note;
}

QColor Mixed(const QColor& first, const QColor& second, int share) {
    const auto mix = [&](int a, int b) { return (a * share + b * (100 - share)) / 100; };
    return {mix(first.red(), second.red()), mix(first.green(), second.green()),
            mix(first.blue(), second.blue())};
}

QColor OutlineColor(const QPalette& palette) {
    return Mixed(palette.color(QPalette::Text), palette.color(QPalette::Base), 18);
}

QColor QuietColor(const QPalette& palette) {
    return Mixed(palette.color(QPalette::WindowText), palette.color(QPalette::Base), 68);
}

}  // namespace frontdesk
