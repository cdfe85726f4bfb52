// SPDX-License-Identifier: MIT
#include "widgets/Card.h"

#include <QPainter>

namespace frontdesk {

Card::Card(const QString& heading, QWidget* content) : content_(new QVBoxLayout(this)) {
    content_->setContentsMargins(kMargin, kMargin - 4, kMargin, kMargin);
    content_->setSpacing(kGap);
    if (heading.isEmpty()) {
        content_->setContentsMargins(2, 2, 2, 6);
    } else {
        content_->addWidget(MakeNote(heading));
        Emphasize(*content_->itemAt(0)->widget());
    }
    if (content != nullptr) content_->addWidget(content, 1);
}

void Card::paintEvent(QPaintEvent*) {
    constexpr qreal kRadius = 8;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    // An outline that can be seen on light and dark surfaces, but stays quiet
    painter.setPen(Mixed(palette().color(QPalette::Text), palette().color(QPalette::Base), 18));
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

void Emphasize(QWidget& widget, qreal scale) {
    QFont font = widget.font();
    font.setPointSizeF(font.pointSizeF() * scale);
    font.setWeight(QFont::DemiBold);
    widget.setFont(font);
}

QColor ToQColor(halvek::Color color) {
    return {halvek::RedOf(color), halvek::GreenOf(color), halvek::BlueOf(color)};
}

QColor Mixed(const QColor& first, const QColor& second, int share) {
    const auto mix = [&](int a, int b) { return (a * share + b * (100 - share)) / 100; };
    return {mix(first.red(), second.red()), mix(first.green(), second.green()),
            mix(first.blue(), second.blue())};
}

QColor QuietColor(const QPalette& palette) {
    return Mixed(palette.color(QPalette::WindowText), palette.color(QPalette::Base), 68);
}

void SetColors(QWidget& widget, halvek::Color back, halvek::Color text) {
    QPalette palette = widget.palette();
    for (const auto role : {QPalette::Window, QPalette::Base})
        palette.setColor(role, ToQColor(back));
    for (const auto role : {QPalette::WindowText, QPalette::Text})
        palette.setColor(role, ToQColor(text));
    widget.setPalette(palette);
}

}  // namespace frontdesk
