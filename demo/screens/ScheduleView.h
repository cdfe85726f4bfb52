// SPDX-License-Identifier: MIT
#pragma once

#include "practice/Practice.h"

#include <QHash>
#include <QPersistentModelIndex>
#include <QStandardItemModel>
#include <QStringList>
#include <QTableView>

namespace frontdesk {

/// A day of the schedule: a column for each provider, a row for each start of a visit. The arrow
/// keys go from visit to visit; Enter and a double click choose one, and letters start a search.
class ScheduleView : public QTableView {
    Q_OBJECT

  public:
    explicit ScheduleView(Practice& practice);

    void ShowDay(const QDate& day, bool withPaidVisits);

    /// The visit that is selected; one with the number 0 for none.
    Visit CurrentVisit() const;
    /// Selects a patient's visit, if there is one.
    void GoToPatient(int patient);

    void keyboardSearch(const QString& text) override;

  signals:
    void Chosen(const frontdesk::Visit& visit);
    void SearchStarted(const QString& text);

  protected:
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void FillGrid(const QStringList& providers, const QList<QTime>& times);
    QStandardItem* MakeItem(const Visit& visit, bool isOnTime) const;

    Practice& practice_;
    QStandardItemModel model_;
    QHash<int, QPersistentModelIndex> cells_;  ///< by patient
};

}  // namespace frontdesk
