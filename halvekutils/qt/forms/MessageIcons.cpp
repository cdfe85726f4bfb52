// SPDX-License-Identifier: MIT
#include <halvekutils/qt/forms/MessageIcons.h>
#include <halvekutils/qt/helpers/KeptPicture.h>

#include <QAccessibleWidget>
#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>

#include <algorithm>
#include <array>
#include <cstddef>
#include <initializer_list>

namespace halvek {
namespace {

// Every picture is drawn on a grid of 32 units. Edges are on even units where possible, which keeps
// them sharp at 16 pixels.
constexpr int kGrid = 32;
constexpr QPointF kCenter(16, 16);
constexpr double kDot = 2.25;  // radius of the dot in a sign

struct Tone {
    QRgb fill;
    QRgb rim;
};

constexpr QRgb kWhiteInk = 0xFFFFFFFF;
constexpr QRgb kDarkInk = 0xFF3A2A00;
constexpr QRgb kReadyLamp = 0xFF7BE495;
constexpr Tone kBlue = {0xFF2474E5, 0xFF0F4599};
constexpr Tone kTeal = {0xFF0A9384, 0xFF05594F};
constexpr Tone kAmber = {0xFFFFC02B, 0xFF8F5F00};
constexpr Tone kGold = {0xFFF7A823, 0xFF854F00};
constexpr Tone kRed = {0xFFDB2B35, 0xFF8C0F1A};
constexpr Tone kSteel = {0xFF8391A0, 0xFF3C4753};
constexpr Tone kSlate = {0xFF5F6C7A, 0xFF2B343D};
constexpr Tone kPaper = {0xFFFFFFFF, 0xFF2B343D};

QPainterPath Circle(const QPointF& center, double radius) {
    QPainterPath path;
    path.addEllipse(center, radius, radius);
    return path;
}

QPainterPath Box(double left, double top, double right, double bottom) {
    QPainterPath path;
    path.addRect(QRectF(QPointF(left, top), QPointF(right, bottom)));
    return path;
}

QPainterPath Polygon(const QPolygonF& corners) {
    QPainterPath path;
    path.addPolygon(corners);
    path.closeSubpath();
    return path;
}

QPainterPath Line(const QPointF& from, const QPointF& to) {
    QPainterPath path(from);
    path.lineTo(to);
    return path;
}

void Fill(QPainter& painter, const QPainterPath& path, QRgb color) {
    painter.fillPath(path, QColor(color));
}

void Stroke(QPainter& painter, const QPainterPath& path, QRgb color, double width) {
    painter.strokePath(path,
                       QPen(QColor(color), width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
}

/// Fills a path grown by `growth` on every side, which also rounds its corners.
void FillGrown(QPainter& painter, const QPainterPath& path, QRgb color, double growth) {
    Stroke(painter, path, color, 2 * growth);
    Fill(painter, path, color);
}

/// One part of a picture, within a rim of one unit that shows on light backgrounds.
void PaintPart(QPainter& painter, const QPainterPath& path, const Tone& tone) {
    FillGrown(painter, path, tone.rim, 2);
    FillGrown(painter, path, tone.fill, 1);
}

/// The ground of a whole picture: a light edge of one unit around the rims of its parts, which
/// shows on dark and coloured backgrounds.
void PaintHalo(QPainter& painter, std::initializer_list<QPainterPath> parts) {
    for (const QPainterPath& part : parts) FillGrown(painter, part, kWhiteInk, 3);
}

/// A picture of one part, for a sign that is painted onto it.
void PaintPlate(QPainter& painter, const QPainterPath& path, const Tone& tone) {
    PaintHalo(painter, {path});
    PaintPart(painter, path, tone);
}

QPainterPath Octagon() {
    return Polygon({{11, 4}, {21, 4}, {28, 11}, {28, 21}, {21, 28}, {11, 28}, {4, 21}, {4, 11}});
}

/// A bar that narrows towards the dot below it.
void PaintExclamationMark(QPainter& painter, QRgb color, double bottom) {
    const double top = bottom - 16;
    const double waist = bottom - 6;
    Fill(painter, Polygon({{14, top}, {18, top}, {17.5, waist}, {14.5, waist}}), color);
    Fill(painter, Circle({16, bottom - 2}, kDot), color);
}

void PaintQuestion(QPainter& painter) {
    PaintPlate(painter, Circle(kCenter, 12), kBlue);
    QPainterPath hook({11.5, 12});
    hook.arcTo(QRectF(11.5, 7.5, 9, 9), 180, -215);
    hook.quadTo({16, 16}, {16, 19});
    Stroke(painter, hook, kWhiteInk, 3);
    Fill(painter, Circle({16, 24}, kDot), kWhiteInk);
}

void PaintInformation(QPainter& painter) {
    QPainterPath tile;
    tile.addRoundedRect(QRectF(6, 6, 20, 20), 3, 3);
    PaintPlate(painter, tile, kTeal);
    Fill(painter, Circle({16, 10}, kDot), kWhiteInk);
    for (const QPainterPath& bar :
         {Box(12, 14, 18, 16), Box(14, 14, 18, 24), Box(12, 22, 20, 24)}) {
        Fill(painter, bar, kWhiteInk);
    }
}

void PaintExclamation(QPainter& painter) {
    PaintPlate(painter, Polygon({{16, 4}, {28.5, 28}, {3.5, 28}}), kAmber);
    PaintExclamationMark(painter, kDarkInk, 26);
}

void PaintCritical(QPainter& painter) {
    PaintPlate(painter, Circle(kCenter, 12), kRed);
    Stroke(painter, Line({11, 11}, {21, 21}), kWhiteInk, 4);
    Stroke(painter, Line({21, 11}, {11, 21}), kWhiteInk, 4);
}

void PaintTrash(QPainter& painter) {
    const QPainterPath handle = Box(13, 4, 19, 8);
    const QPainterPath lid = Box(6, 8, 26, 8);
    const QPainterPath bin = Polygon({{8, 12}, {24, 12}, {23, 28}, {9, 28}});
    PaintHalo(painter, {handle, lid, bin});
    PaintPart(painter, bin, kSteel);
    PaintPart(painter, handle, kSteel);
    PaintPart(painter, lid, kSteel);
    for (const double x : {11, 16, 21}) {
        Stroke(painter, Line({x, 16}, {x, 25}), kWhiteInk, 2);
    }
}

void PaintPrint(QPainter& painter) {
    const QPainterPath feed = Box(10, 4, 22, 12);
    const QPainterPath printer = Box(4, 12, 28, 22);
    const QPainterPath page = Box(10, 20, 22, 28);
    PaintHalo(painter, {feed, printer, page});
    PaintPart(painter, feed, kPaper);
    PaintPart(painter, printer, kSlate);
    PaintPart(painter, page, kPaper);
    Stroke(painter, Line({12, 23}, {20, 23}), kSteel.fill, 1.5);
    Stroke(painter, Line({12, 26}, {20, 26}), kSteel.fill, 1.5);
    Fill(painter, Circle({25, 14}, 1.5), kReadyLamp);
}

void PaintReminder(QPainter& painter) {
    const QPainterPath knob = Circle({16, 5}, 1);
    const QPainterPath clapper = Circle({16, 25.5}, 2.5);
    QPainterPath bell({4, 24});
    bell.cubicTo({8, 21}, {8, 18}, {8, 15});
    bell.arcTo(QRectF(8, 7, 16, 16), 180, -180);
    bell.cubicTo({24, 18}, {24, 21}, {28, 24});
    bell.closeSubpath();
    PaintHalo(painter, {knob, clapper, bell});
    PaintPart(painter, knob, kGold);
    PaintPart(painter, clapper, kGold);
    PaintPart(painter, bell, kGold);
}

void PaintExclamationCritical(QPainter& painter) {
    PaintPlate(painter, Octagon(), kRed);
    PaintExclamationMark(painter, kWhiteInk, 24);
}

struct Picture {
    const char* name;
    void (*paint)(QPainter& painter);
};

constexpr std::array<Picture, 8> kPictures = {{
    {"Question", PaintQuestion},
    {"Information", PaintInformation},
    {"Exclamation", PaintExclamation},
    {"Critical", PaintCritical},
    {"Trash", PaintTrash},
    {"Print", PaintPrint},
    {"Reminder", PaintReminder},
    {"Critical exclamation", PaintExclamationCritical},
}};

const Picture* FindPicture(int number) {
    if (number < 1 || number > static_cast<int>(kPictures.size())) return nullptr;
    return &kPictures[static_cast<std::size_t>(number - 1)];
}

/// Marks the widget as a picture for screen readers; Qt cannot know that it is one.
QAccessibleInterface* AccessibleIcon(const QString&, QObject* object) {
    auto* const icon = qobject_cast<MessageIcon*>(object);
    return icon == nullptr ? nullptr : new QAccessibleWidget(icon, QAccessible::Graphic);
}

}  // namespace

void PaintMessageIcon(QPainter& painter, int number, const QRectF& area) {
    const Picture* picture = FindPicture(number);
    if (picture == nullptr) return;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(area.topLeft());
    painter.scale(area.width() / kGrid, area.height() / kGrid);
    picture->paint(painter);
    painter.restore();
}

QString MessageIconName(int number) {
    const Picture* picture = FindPicture(number);
    return picture == nullptr ? QString() : QString::fromLatin1(picture->name);
}

MessageIcon::MessageIcon(QWidget* parent) : QWidget(parent) {
    QAccessible::installFactory(AccessibleIcon);  // once, however often it is called
}

void MessageIcon::SetNumber(int number) {
    number_ = number;
    setAccessibleName(MessageIconName(number));
    update();
}

QSize MessageIcon::sizeHint() const {
    return {kGrid, kGrid};
}

void MessageIcon::paintEvent(QPaintEvent*) {
    const int side = std::min(width(), height());
    const QRect area((width() - side) / 2, (height() - side) / 2, side, side);
    QPainter painter(this);
    DrawKept(painter, area, QLatin1String("icon"), static_cast<unsigned>(number_),
             [&](QPainter& picture) {
                 PaintMessageIcon(picture, number_, QRect(QPoint(), area.size()));
             });
}

}  // namespace halvek
