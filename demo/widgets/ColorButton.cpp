// SPDX-License-Identifier: MIT
#include "widgets/ColorButton.h"

#include <QColorDialog>
#include <QGuiApplication>
#include <QPainter>
#include <QPalette>
#include <QPixmap>

namespace frontdesk {

namespace {

constexpr QSize kSwatch(40, 16);

}  // namespace

QColor ToQColor(halvek::Color color) {
    if (halvek::IsSchemeColor(color)) return QGuiApplication::palette().color(QPalette::Button);
    return QColor(halvek::RedOf(color), halvek::GreenOf(color), halvek::BlueOf(color));
}

ColorButton::ColorButton() {
    setIconSize(kSwatch);
    SetValue(0);
    connect(this, &QPushButton::clicked, this, &ColorButton::Choose);
}

void ColorButton::SetValue(halvek::Color value) {
    value_ = value;
    QPixmap swatch(kSwatch);
    swatch.fill(ToQColor(value));
    QPainter painter(&swatch);
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(swatch.rect().adjusted(0, 0, -1, -1));
    painter.end();
    setIcon(swatch);
    setText(QString::number(value));
}

void ColorButton::Choose() {
    const QColor chosen = QColorDialog::getColor(ToQColor(value_), this, accessibleName());
    if (!chosen.isValid()) return;
    SetValue(chosen.red() | chosen.green() << 8 | chosen.blue() << 16);
}

}  // namespace frontdesk
