// SPDX-License-Identifier: MIT
#include "screens/ScheduleView.h"

#include "Texts.h"
#include "widgets/Card.h"
#include "widgets/Tables.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QStyledItemDelegate>

namespace frontdesk {

namespace {

constexpr int kVisitRole = Qt::UserRole;
constexpr int kBar = 4;
constexpr qreal kRadius = 4;
// Hundredths of the reason's colour
constexpr int kLightTint = 22;
constexpr int kDarkTint = 30;
constexpr int kFewestLetters = 20;  // that a column has room for

Visit VisitIn(const QModelIndex& cell) {
    return cell.data(kVisitRole).value<Visit>();
}

/// Paints a visit: a bar and a tint in the colour of its reason, the name, and the state.
class VisitPainter : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& cell) const override {
        const QColor base = option.palette.color(QPalette::Active, QPalette::Base);
        painter->save();
        painter->fillRect(option.rect, base);  // the view has painted a selection
        painter->setPen(Mixed(option.palette.color(QPalette::Text), base, 8));
        painter->drawLine(option.rect.bottomLeft(), option.rect.bottomRight());
        if ((cell.flags() & Qt::ItemIsEnabled) != 0) PaintVisit(*painter, option, cell, base);
        painter->restore();
    }

  private:
    static void PaintVisit(QPainter& painter, const QStyleOptionViewItem& option,
                           const QModelIndex& cell, const QColor& base) {
        const VisitState state = VisitIn(cell).state;
        const bool isPaid = state == VisitState::Paid;
        const bool isSelected = option.state & QStyle::State_Selected;
        const auto color = cell.data(Qt::BackgroundRole).value<QColor>();
        const QRectF block = QRectF(option.rect).adjusted(3, 1.5, -3, -2.5);
        const int tint = base.lightness() < 128 ? kDarkTint : kLightTint;
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(isSelected ? QPen(option.palette.highlight(), 2) : QPen(Qt::NoPen));
        painter.setBrush(Mixed(color, base, isSelected ? 2 * tint : isPaid ? tint / 2 : tint));
        painter.drawRoundedRect(block, kRadius, kRadius);
        painter.setPen(Qt::NoPen);
        painter.setBrush(isPaid ? Mixed(color, base, 45) : color);
        painter.drawRoundedRect(QRectF(block.left() + 1, block.top() + 1, kBar, block.height() - 2),
                                2, 2);
        QRect room = block.toRect().adjusted(kBar + 7, 0, -7, 0);
        if (state != VisitState::Expected) PaintState(painter, option, room, state);
        painter.setPen(isPaid ? QuietColor(option.palette) : option.palette.color(QPalette::Text));
        painter.setFont(option.font);
        painter.drawText(
            room, Qt::AlignVCenter,
            option.fontMetrics.elidedText(cell.data().toString(), Qt::ElideRight, room.width()));
    }

    /// At the right, and takes its place off the room for the name. Who is due has a pill.
    static void PaintState(QPainter& painter, const QStyleOptionViewItem& option, QRect& room,
                           VisitState state) {
        const bool isDue = state == VisitState::Due;
        QFont font = option.font;
        font.setPointSizeF(font.pointSizeF() * 0.88);
        font.setBold(isDue);
        painter.setFont(font);
        const QSize text = painter.fontMetrics().size(0, StateName(state));
        QRect pill(QPoint(), text + QSize(isDue ? 14 : 4, 2));
        pill.moveCenter(room.center());
        pill.moveRight(room.right());
        painter.setBrush(isDue ? option.palette.highlight() : QBrush(Qt::NoBrush));
        painter.drawRoundedRect(pill, pill.height() / 2.0, pill.height() / 2.0);
        painter.setPen(isDue ? option.palette.color(QPalette::HighlightedText)
                             : QuietColor(option.palette));
        painter.drawText(pill, Qt::AlignCenter, StateName(state));
        room.setRight(pill.left() - 6);
    }
};

}  // namespace

ScheduleView::ScheduleView(Practice& practice) : practice_(practice) {
    Flatten(*this);
    setModel(&model_);
    setItemDelegate(new VisitPainter(this));
    setAccessibleName("Schedule");
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    verticalHeader()->setDefaultAlignment(Qt::AlignRight | Qt::AlignVCenter);
    for (QHeaderView* header : {verticalHeader(), horizontalHeader()}) {
        header->setSectionResizeMode(QHeaderView::Fixed);
        header->setSectionsClickable(false);
        header->setTextElideMode(Qt::ElideRight);
    }
    Emphasize(*horizontalHeader());
    connect(this, &QAbstractItemView::doubleClicked, this, [this] { emit Chosen(CurrentVisit()); });
}

void ScheduleView::ShowDay(const QDate& day, bool withPaidVisits) {
    const QStringList providers = practice_.Providers();
    const QList<QTime> times = practice_.Times();
    FillGrid(providers, times);
    cells_.clear();
    for (const Visit& visit : practice_.Visits(day)) {
        if (visit.state == VisitState::Paid && !withPaidVisits) continue;
        const int column = static_cast<int>(providers.indexOf(visit.provider));
        int row = static_cast<int>(times.indexOf(visit.time));
        // Where a provider has two visits at once, the second stands below.
        while (model_.item(row, column)->isEnabled() && row + 1 < model_.rowCount()) ++row;
        model_.setItem(row, column, MakeItem(visit, times[row] == visit.time));
        if (!cells_.contains(visit.patient)) cells_[visit.patient] = model_.index(row, column);
    }
}

void ScheduleView::FillGrid(const QStringList& providers, const QList<QTime>& times) {
    model_.clear();
    for (const QTime& time : times) {
        QList<QStandardItem*> row;
        for (qsizetype i = 0; i < providers.size(); ++i) {
            row << new QStandardItem;
            row.last()->setFlags(Qt::NoItemFlags);
        }
        model_.appendRow(row);
        model_.setHeaderData(model_.rowCount() - 1, Qt::Vertical, TimeText(time));
    }
    for (int column = 0; column < providers.size(); ++column) {
        const QString name = practice_.Description("PRV", providers[column]);
        model_.setHeaderData(column, Qt::Horizontal, name.isEmpty() ? providers[column] : name);
    }
}

QStandardItem* ScheduleView::MakeItem(const Visit& visit, bool isOnTime) const {
    const Reason reason = practice_.ReasonOf(visit);
    const QString time = TimeText(visit.time);
    const QString whole =
        QStringList{time, visit.patientName, reason.description, StateName(visit.state)}.join(", ");
    auto* item = new QStandardItem((isOnTime ? QString() : time + "  ") + visit.patientName);
    item->setData(QVariant::fromValue(visit), kVisitRole);
    item->setData(ToQColor(reason.color), Qt::BackgroundRole);
    item->setToolTip(whole);
    item->setAccessibleText(whole);
    return item;
}

Visit ScheduleView::CurrentVisit() const {
    return VisitIn(currentIndex());
}

void ScheduleView::GoToPatient(int patient) {
    const QModelIndex cell = cells_.value(patient);
    if (cell.isValid() && cell != currentIndex()) setCurrentIndex(cell);
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
    if (!isEnter) return QTableView::keyPressEvent(event);
    if (CurrentVisit().id != 0) emit Chosen(CurrentVisit());
}

// To the next visit above or below, or to the visit of the next provider that is nearest in time
QModelIndex ScheduleView::moveCursor(CursorAction action, Qt::KeyboardModifiers) {
    struct Move {
        CursorAction action;
        int rows;
        int columns;
    };
    constexpr Move kMoves[] = {{MoveUp, -1, 0},     {MovePrevious, -1, 0}, {MoveDown, 1, 0},
                               {MoveNext, 1, 0},    {MoveLeft, 0, -1},     {MoveRight, 0, 1},
                               {MovePageUp, -6, 0}, {MovePageDown, 6, 0},  {MoveHome, -999, 0},
                               {MoveEnd, 999, 0}};
    const auto* move = std::find_if(std::begin(kMoves), std::end(kMoves),
                                    [action](const Move& each) { return each.action == action; });
    QModelIndex nearest = currentIndex();
    const int from = nearest.row();
    const int wanted = from + move->rows;
    const int column = qMax(0, nearest.column()) + move->columns;
    int distance = std::numeric_limits<int>::max();
    for (int row = 0; row < model_.rowCount(); ++row) {
        const QModelIndex cell = model_.index(row, column);
        const bool isAhead = move->rows == 0 || (move->rows < 0 ? row < from : row > from);
        if (!isAhead || VisitIn(cell).id == 0 || qAbs(row - wanted) >= distance) continue;
        distance = qAbs(row - wanted);
        nearest = cell;
    }
    return nearest;
}

}  // namespace frontdesk
