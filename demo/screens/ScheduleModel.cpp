// SPDX-License-Identifier: MIT
#include "screens/ScheduleModel.h"

#include "Texts.h"

#include <algorithm>

namespace frontdesk {

namespace {

constexpr const char* kStateNames[] = {"expected", "DUE", "checked in", "paid"};

}  // namespace

QString StateName(VisitState state) {
    return kStateNames[static_cast<std::size_t>(state)];
}

ScheduleModel::ScheduleModel(Desk& desk) : desk_(desk) {}

void ScheduleModel::ShowDay(const QDate& day) {
    beginResetModel();
    day_ = day;
    reasons_ = desk_.Server().Reasons();
    visits_.clear();
    times_ = desk_.Server().Times();
    providers_ = desk_.Server().Providers();
    const bool showsPaid = desk_.ShowsPaidVisits();
    for (const Visit& visit : desk_.Server().Visits(day_)) {
        if (visit.state == VisitState::Paid && !showsPaid) continue;
        int row =
            static_cast<int>(std::find(times_.begin(), times_.end(), visit.time) - times_.begin());
        const int column = static_cast<int>(providers_.indexOf(visit.provider));
        // Where a provider has two visits at once, the second stands below.
        while (visits_.count({row, column}) > 0 && row + 1 < rowCount()) ++row;
        visits_[{row, column}] = visit;
    }
    endResetModel();
}

const Visit* ScheduleModel::VisitAt(const QModelIndex& cell) const {
    const auto found = visits_.find({cell.row(), cell.column()});
    return found == visits_.end() ? nullptr : &found->second;
}

QModelIndex ScheduleModel::CellOf(int patient) const {
    for (const auto& [cell, visit] : visits_) {
        if (visit.patient == patient) return index(cell.first, cell.second);
    }
    return {};
}

const Visit* ScheduleModel::FirstIn(VisitState state) const {
    for (const auto& [cell, visit] : visits_) {
        if (visit.state == state) return &visit;
    }
    return nullptr;
}

const Reason* ScheduleModel::ReasonOf(const Visit& visit) const {
    for (const Reason& reason : reasons_) {
        if (reason.code == visit.reason) return &reason;
    }
    return nullptr;
}

int ScheduleModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(times_.size());
}

int ScheduleModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(providers_.size());
}

QVariant ScheduleModel::data(const QModelIndex& cell, int role) const {
    const Visit* visit = VisitAt(cell);
    if (visit == nullptr) return {};
    if (role == Qt::DisplayRole) {
        const bool isOnTime = times_[static_cast<std::size_t>(cell.row())] == visit->time;
        return isOnTime ? visit->patientName : TimeText(visit->time) + "  " + visit->patientName;
    }
    const Reason* reason = ReasonOf(*visit);
    if (role != Qt::ToolTipRole && role != Qt::AccessibleTextRole) return {};
    return QString("%1, %2, %3, %4")
        .arg(TimeText(visit->time), visit->patientName,
             reason == nullptr ? visit->reason : reason->description, StateName(visit->state));
}

QVariant ScheduleModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (role != Qt::DisplayRole) return {};
    if (orientation == Qt::Vertical) return TimeText(times_[static_cast<std::size_t>(section)]);
    return desk_.Server().Description("PRV", providers_[section]).value_or(providers_[section]);
}

Qt::ItemFlags ScheduleModel::flags(const QModelIndex& cell) const {
    return VisitAt(cell) == nullptr ? Qt::NoItemFlags : Qt::ItemIsEnabled | Qt::ItemIsSelectable;
}

}  // namespace frontdesk
