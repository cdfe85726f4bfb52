// SPDX-License-Identifier: MIT
#pragma once

#include "screens/ScheduleModel.h"

#include <QStyledItemDelegate>
#include <QTableView>

namespace frontdesk {

/// The schedule's grid. The arrow keys go from visit to visit; Enter and a double click choose one,
/// and letters start a search.
class ScheduleView : public QTableView {
    Q_OBJECT

  public:
    explicit ScheduleView(ScheduleModel& model);

    void keyboardSearch(const QString& text) override;

  signals:
    void Chosen(const QModelIndex& cell);
    void SearchStarted(const QString& text);

  protected:
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    QModelIndex NextInColumn(const QModelIndex& from, int step) const;
    QModelIndex NearestInColumn(int row, int column) const;

    ScheduleModel& model_;
};

/// Paints a visit: a bar and a tint in the colour of its reason, the name, and the state.
class VisitPainter : public QStyledItemDelegate {
  public:
    VisitPainter(ScheduleModel& model, QObject* parent)
        : QStyledItemDelegate(parent), model_(model) {}

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& cell) const override;

  private:
    void PaintState(QPainter& painter, const QStyleOptionViewItem& option, QRect& room,
                    VisitState state) const;

    ScheduleModel& model_;
};

}  // namespace frontdesk
