// SPDX-License-Identifier: MIT
#include <halvekutils/qt/help/HelpIcons.h>

#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>

namespace halvek {

namespace {

// Every picture is drawn on a grid of 32 units, in tones that light and dark desktops both show.
constexpr double kGrid = 32;
constexpr QRgb kFill = 0xFF2F80ED;
constexpr QRgb kPaper = 0xFFFFFFFF;
constexpr double kPale = 0.35;

QPainterPath Polygon(const QPolygonF& corners) {
    QPainterPath path;
    path.addPolygon(corners);
    path.closeSubpath();
    return path;
}

void Fill(QPainter& painter, const QPainterPath& path, QRgb color = kFill) {
    painter.strokePath(path, QPen(QColor(color), 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.fillPath(path, QColor(color));
}

void Stroke(QPainter& painter, const QPainterPath& path, double width, QRgb color = kFill) {
    painter.strokePath(path,
                       QPen(QColor(color), width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
}

QPainterPath Line(const QPointF& from, const QPointF& to) {
    QPainterPath path(from);
    path.lineTo(to);
    return path;
}

void PaintBack(QPainter& painter) {
    Fill(painter, Polygon({{4, 16}, {16, 5}, {16, 11}, {28, 11}, {28, 21}, {16, 21}, {16, 27}}));
}

void PaintForward(QPainter& painter) {
    painter.translate(kGrid, 0);
    painter.scale(-1, 1);
    PaintBack(painter);
}

void PaintHome(QPainter& painter) {
    Fill(painter, Polygon({{16, 4}, {29, 16}, {25, 16}, {25, 28}, {7, 28}, {7, 16}, {3, 16}}));
    Fill(painter, Polygon({{14, 20}, {18, 20}, {18, 27}, {14, 27}}), kPaper);
}

void PaintContents(QPainter& painter) {
    Fill(painter, Polygon({{5, 4}, {27, 4}, {27, 28}, {5, 28}}));
    for (const double y : {10, 16, 22}) Stroke(painter, Line({10, y}, {22, y}), 2.5, kPaper);
}

void PaintLens(QPainter& painter) {
    QPainterPath lens;
    lens.addEllipse(QPointF(13, 13), 9, 9);
    painter.fillPath(lens, QColor(kPaper));
    Stroke(painter, lens, 4);
    Stroke(painter, Line({20.5, 20.5}, {28, 28}), 5);
}

void PaintSmaller(QPainter& painter) {
    PaintLens(painter);
    Stroke(painter, Line({9, 13}, {17, 13}), 3);
}

void PaintLarger(QPainter& painter) {
    PaintSmaller(painter);
    Stroke(painter, Line({13, 9}, {13, 17}), 3);
}

void PaintPrinter(QPainter& painter) {
    Fill(painter, Polygon({{4, 12}, {28, 12}, {28, 23}, {4, 23}}));
    Fill(painter, Polygon({{9, 4}, {23, 4}, {23, 12}, {9, 12}}));
    Fill(painter, Polygon({{11, 6}, {21, 6}, {21, 12}, {11, 12}}), kPaper);
    Fill(painter, Polygon({{9, 19}, {23, 19}, {23, 28}, {9, 28}}));
    Fill(painter, Polygon({{11, 21}, {21, 21}, {21, 26}, {11, 26}}), kPaper);
}

using Paint = void (*)(QPainter& painter);
constexpr Paint kPaints[] = {PaintBack, PaintForward, PaintHome,   PaintContents,
                             PaintLens, PaintSmaller, PaintLarger, PaintPrinter};

class Engine : public QIconEngine {
  public:
    explicit Engine(HelpPicture picture) : picture_(picture) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        if (mode == QIcon::Disabled) painter->setOpacity(kPale);
        painter->translate(rect.topLeft());
        painter->scale(rect.width() / kGrid, rect.height() / kGrid);
        kPaints[static_cast<int>(picture_)](*painter);
        painter->restore();
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap picture(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return picture;
    }
    QIconEngine* clone() const override { return new Engine(*this); }

  private:
    HelpPicture picture_;
};

}  // namespace

QIcon HelpIcon(HelpPicture picture) {
    return QIcon(new Engine(picture));
}

}  // namespace halvek
