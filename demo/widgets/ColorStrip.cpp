// SPDX-License-Identifier: MIT
#include "widgets/ColorStrip.h"

#include "widgets/ColorButton.h"

#include <halvekutils/qt/QtText.h>

#include <QPainter>

namespace frontdesk {

namespace {

constexpr int kCell = 18;
constexpr int kGap = 3;
constexpr int kColumns = 12;

QRect CellOf(int position) {
    const int step = kCell + kGap;
    return {position % kColumns * step, position / kColumns * step, kCell, kCell};
}

void PaintCell(QPainter& painter, const QRect& cell, const QString& color) {
    const int value = color.toInt();
    painter.fillRect(cell, value < 0 ? Qt::transparent : ToQColor(value));
    painter.drawRect(cell.adjusted(0, 0, -1, -1));
    if (value < 0) painter.drawLine(cell.bottomLeft(), cell.topRight());
}

}  // namespace

ColorStrip::ColorStrip() {
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void ColorStrip::SetColors(const halvek::StringArray& colors) {
    colors_ = colors;
    const auto count = std::distance(colors_.begin(), colors_.end());
    setAccessibleDescription(QString("%1 colours").arg(count));
    updateGeometry();
    update();
}

QSize ColorStrip::sizeHint() const {
    const auto count = static_cast<int>(std::distance(colors_.begin(), colors_.end()));
    const int rows = (count + kColumns - 1) / kColumns;
    return {kColumns * (kCell + kGap), rows * (kCell + kGap)};
}

void ColorStrip::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::Mid));
    int position = 0;
    for (const std::u16string& color : colors_) {
        PaintCell(painter, CellOf(position++), halvek::ToQString(color));
    }
}

}  // namespace frontdesk
