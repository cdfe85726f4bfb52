// SPDX-License-Identifier: MIT
#include "screens/ScheduleView.h"

#include "widgets/Card.h"
#include "widgets/List.h"
#include "widgets/RequiredColor.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>

namespace frontdesk {

namespace {

constexpr int kRowPadding = 9;
constexpr int kBar = 4;
constexpr qreal kRadius = 4;
// Hundredths of the reason's colour
constexpr int kLightTint = 22;
constexpr int kDarkTint = 30;
constexpr int kFewestLetters = 20;  // that a column has room for

}  // namespace

ScheduleView::ScheduleView(ScheduleModel& model) : model_(model) {
    setModel(&model_);
    setItemDelegate(new VisitPainter(model_, this));
    setAccessibleName("Schedule");
    setSelectionMode(QAbstractItemView::SingleSelection);
    setFrameShape(QFrame::NoFrame);
    setShowGrid(false);
    FlattenHeaders(*this);
    setTabKeyNavigation(false);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    setMouseTracking(true);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + kRowPadding);
    verticalHeader()->setDefaultAlignment(Qt::AlignRight | Qt::AlignVCenter);
    for (QHeaderView* header : {verticalHeader(), horizontalHeader()}) {
        header->setHighlightSections(false);
        header->setSectionsClickable(false);
    }
    horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    QFont bold = font();
    bold.setWeight(QFont::DemiBold);
    horizontalHeader()->setFont(bold);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    connect(this, &QAbstractItemView::doubleClicked, this, &ScheduleView::Chosen);
}

void ScheduleView::resizeEvent(QResizeEvent* event) {
    QTableView::resizeEvent(event);
    const int columns = qMax(1, model_.columnCount());
    const int fewest = fontMetrics().averageCharWidth() * kFewestLetters;
    horizontalHeader()->setDefaultSectionSize(qMax(fewest, viewport()->width() / columns));
}

void ScheduleView::keyboardSearch(const QString& text) {
    if (!text.trimmed().isEmpty()) emit SearchStarted(text);
}

void ScheduleView::keyPressEvent(QKeyEvent* event) {
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEnter && model_.VisitAt(currentIndex()) != nullptr) return emit Chosen(currentIndex());
    QTableView::keyPressEvent(event);
}

QModelIndex ScheduleView::moveCursor(CursorAction action, Qt::KeyboardModifiers) {
    const QModelIndex from = currentIndex();
    constexpr int kPage = 6;
    switch (action) {
        case MoveUp:
        case MovePrevious:
            return NextInColumn(from, -1);
        case MoveDown:
        case MoveNext:
            return NextInColumn(from, 1);
        case MoveLeft:
            return NearestInColumn(from.row(), from.column() - 1);
        case MoveRight:
            return NearestInColumn(from.row(), from.column() + 1);
        case MoveHome:
            return NearestInColumn(0, from.column());
        case MoveEnd:
            return NearestInColumn(model_.rowCount(), from.column());
        case MovePageUp:
            return NearestInColumn(from.row() - kPage, from.column());
        case MovePageDown:
            return NearestInColumn(from.row() + kPage, from.column());
    }
    return from;
}

QModelIndex ScheduleView::NextInColumn(const QModelIndex& from, int step) const {
    for (int row = from.row() + step; row >= 0 && row < model_.rowCount(); row += step) {
        const QModelIndex cell = model_.index(row, from.column());
        if (model_.VisitAt(cell) != nullptr) return cell;
    }
    return from;
}

QModelIndex ScheduleView::NearestInColumn(int row, int column) const {
    QModelIndex nearest = currentIndex();
    if (column < 0 || column >= model_.columnCount()) return nearest;
    int distance = model_.rowCount() + 1;
    for (int each = 0; each < model_.rowCount(); ++each) {
        const QModelIndex cell = model_.index(each, column);
        if (model_.VisitAt(cell) == nullptr || qAbs(each - row) >= distance) continue;
        distance = qAbs(each - row);
        nearest = cell;
    }
    return nearest;
}

void VisitPainter::paint(QPainter* painter, const QStyleOptionViewItem& option,
                         const QModelIndex& cell) const {
    const QRect box = option.rect;
    const QColor base = option.palette.color(QPalette::Active, QPalette::Base);
    const int tint = base.lightness() < 128 ? kDarkTint : kLightTint;
    painter->save();
    painter->fillRect(box, base);  // the view has painted a selection
    painter->setPen(Mixed(option.palette.color(QPalette::Text), base, 8));
    painter->drawLine(box.bottomLeft(), box.bottomRight());
    const Visit* visit = model_.VisitAt(cell);
    const Reason* reason = visit == nullptr ? nullptr : model_.ReasonOf(*visit);
    if (visit != nullptr && reason != nullptr) {
        painter->setRenderHint(QPainter::Antialiasing);
        const QColor color = ToQColor(reason->color);
        const bool isSelected = option.state & QStyle::State_Selected;
        const QRectF block = QRectF(box).adjusted(3, 1.5, -3, -2.5);
        painter->setPen(isSelected ? QPen(option.palette.color(QPalette::Highlight), 2)
                                   : QPen(Qt::NoPen));
        const bool isOver = visit->state == VisitState::Paid;
        painter->setBrush(Mixed(color, base, isSelected ? 2 * tint : isOver ? tint / 2 : tint));
        painter->drawRoundedRect(block, kRadius, kRadius);
        painter->setPen(Qt::NoPen);
        painter->setBrush(isOver ? Mixed(color, base, 45) : color);
        painter->drawRoundedRect(
            QRectF(block.left() + 1, block.top() + 1, kBar, block.height() - 2), 2, 2);
        QRect room = block.toRect().adjusted(kBar + 7, 0, -7, 0);
        PaintState(*painter, option, room, visit->state);
        painter->setPen(isOver ? QuietColor(option.palette) : option.palette.color(QPalette::Text));
        painter->drawText(
            room, Qt::AlignVCenter,
            option.fontMetrics.elidedText(cell.data().toString(), Qt::ElideRight, room.width()));
    }
    painter->restore();
}

void VisitPainter::PaintState(QPainter& painter, const QStyleOptionViewItem& option, QRect& room,
                              VisitState state) const {
    if (state == VisitState::Expected) return;
    const bool isDue = state == VisitState::Due;
    QFont font = option.font;
    font.setPointSizeF(font.pointSizeF() * 0.88);
    if (isDue) font.setWeight(QFont::Bold);
    painter.setFont(font);
    const QString name = StateName(state);
    const int width = painter.fontMetrics().horizontalAdvance(name) + (isDue ? 14 : 4);
    QRect place(room.right() - width, room.top(), width, room.height());
    if (isDue) {
        painter.setBrush(option.palette.highlight());
        const int height = painter.fontMetrics().height() + 2;
        const QRectF pill(place.left(), place.center().y() - height / 2.0 + 0.5, width, height);
        painter.drawRoundedRect(pill, height / 2.0, height / 2.0);
        painter.setPen(option.palette.color(QPalette::HighlightedText));
        painter.drawText(pill, Qt::AlignCenter, name);
    } else {
        painter.setPen(QuietColor(option.palette));
        painter.drawText(place, Qt::AlignVCenter | Qt::AlignRight, name);
    }
    painter.setFont(option.font);
    room.setRight(place.left() - 6);
}

}  // namespace frontdesk
