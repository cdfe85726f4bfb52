// SPDX-License-Identifier: MIT
#include "widgets/Icons.h"

#include <QApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>

namespace frontdesk {

namespace {

// All glyphs are drawn on a square of this side.
constexpr qreal kSide = 24;
constexpr qreal kLine = 1.6;

/// The client's own icon: the counter of a front desk with a cross, in its own colours.
void DrawDesk(QPainter& painter) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0x1F5484));
    painter.drawRoundedRect(QRectF(1, 1, 22, 22), 5, 5);
    painter.setBrush(Qt::white);
    painter.drawRoundedRect(QRectF(10, 4, 4, 11), 1, 1);
    painter.drawRoundedRect(QRectF(6.5, 7.5, 11, 4), 1, 1);
    painter.setBrush(QColor(0xA9CBE8));
    painter.drawRoundedRect(QRectF(4, 17.5, 16, 3), 1.5, 1.5);
}

void DrawCalendar(QPainter& painter) {
    painter.drawRoundedRect(QRectF(3.5, 5, 17, 15.5), 2, 2);
    painter.drawLine(QPointF(3.5, 10), QPointF(20.5, 10));
    painter.drawLine(QPointF(8, 3), QPointF(8, 6.5));
    painter.drawLine(QPointF(16, 3), QPointF(16, 6.5));
}

void DrawPerson(QPainter& painter) {
    painter.drawEllipse(QPointF(12, 8), 4, 4);
    QPainterPath shoulders(QPointF(4, 20.5));
    shoulders.cubicTo(4, 11.5, 20, 11.5, 20, 20.5);
    painter.drawPath(shoulders);
}

void DrawCheck(QPainter& painter) {
    painter.drawEllipse(QPointF(12, 12), 9, 9);
    painter.drawPolyline(QPolygonF({{7.5, 12.5}, {10.8, 15.6}, {16.5, 8.8}}));
}

void DrawCard(QPainter& painter) {
    painter.drawRoundedRect(QRectF(2.5, 5, 19, 14), 2, 2);
    painter.drawLine(QPointF(2.5, 9.5), QPointF(21.5, 9.5));
    painter.drawLine(QPointF(6, 15), QPointF(11, 15));
}

void DrawSearch(QPainter& painter) {
    painter.drawEllipse(QPointF(10.5, 10.5), 6, 6);
    painter.drawLine(QPointF(15, 15), QPointF(20.5, 20.5));
}

void DrawList(QPainter& painter) {
    for (const qreal y : {6.5, 12.0, 17.5}) {
        painter.drawPoint(QPointF(5, y));
        painter.drawLine(QPointF(9, y), QPointF(20, y));
    }
}

void DrawCalculator(QPainter& painter) {
    painter.drawRoundedRect(QRectF(5, 2.5, 14, 19), 2, 2);
    painter.drawLine(QPointF(8.5, 7), QPointF(15.5, 7));
    for (const qreal y : {12.0, 17.0}) {
        for (const qreal x : {8.7, 12.0, 15.3}) painter.drawPoint(QPointF(x, y));
    }
}

struct Drawing {
    Glyph glyph;
    void (*draw)(QPainter& painter);
};

constexpr Drawing kDrawings[] = {
    {Glyph::Desk, DrawDesk},     {Glyph::Calendar, DrawCalendar},
    {Glyph::Person, DrawPerson}, {Glyph::Check, DrawCheck},
    {Glyph::Card, DrawCard},     {Glyph::Search, DrawSearch},
    {Glyph::List, DrawList},     {Glyph::Calculator, DrawCalculator},
};

class Engine : public QIconEngine {
  public:
    explicit Engine(Glyph glyph) : glyph_(glyph) {}

    QIconEngine* clone() const override { return new Engine(glyph_); }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, pixmap.rect(), mode, state);
        return pixmap;
    }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
        const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        const QColor color = QApplication::palette().color(group, QPalette::ButtonText);
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(rect.topLeft());
        painter->scale(rect.width() / kSide, rect.height() / kSide);
        painter->setPen(QPen(color, kLine, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        for (const Drawing& drawing : kDrawings) {
            if (drawing.glyph == glyph_) drawing.draw(*painter);
        }
        painter->restore();
    }

  private:
    Glyph glyph_;
};

}  // namespace

QIcon MakeIcon(Glyph glyph) {
    return QIcon(new Engine(glyph));
}

}  // namespace frontdesk
