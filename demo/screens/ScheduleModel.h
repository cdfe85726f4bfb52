// SPDX-License-Identifier: MIT
#pragma once

#include "Desk.h"

#include <QAbstractTableModel>

#include <map>
#include <vector>

namespace frontdesk {

/// A day of the schedule: a column for each provider, a row for each start of a visit.
class ScheduleModel : public QAbstractTableModel {
  public:
    explicit ScheduleModel(Desk& desk);

    void ShowDay(const QDate& day);
    const QDate& Day() const { return day_; }

    /// The visit in a cell; null for none.
    const Visit* VisitAt(const QModelIndex& cell) const;
    /// The cell of a patient's visit; invalid when there is none.
    QModelIndex CellOf(int patient) const;
    /// The first visit in a state.
    const Visit* FirstIn(VisitState state) const;

    /// Why the patient comes; null for an unknown code.
    const Reason* ReasonOf(const Visit& visit) const;
    const std::vector<Reason>& Reasons() const { return reasons_; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& cell, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& cell) const override;

  private:
    Desk& desk_;
    QDate day_;
    QStringList providers_;
    std::vector<QTime> times_;
    std::vector<Reason> reasons_;
    std::map<std::pair<int, int>, Visit> visits_;  ///< by row and column
};

/// How the client calls a state.
QString StateName(VisitState state);

}  // namespace frontdesk
