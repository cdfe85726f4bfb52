// SPDX-License-Identifier: MIT
#include <halvekutils/qt/QtText.h>
#include <halvekutils/qt/forms/SelectGridModel.h>

#include <algorithm>

namespace halvek {

namespace {

constexpr int kRowsPerBand = SelectionList::kRowsPerBand;

}  // namespace

SelectGridModel::SelectGridModel(const SelectGrid& rules, QObject* parent)
    : QAbstractTableModel(parent), rules_(rules) {}

QModelIndex SelectGridModel::IndexOf(CellPlace place) const {
    return place.row < 1 ? QModelIndex() : index((place.row - 1) / kRowsPerBand, place.column - 1);
}

CellPlace SelectGridModel::PlaceOf(const QModelIndex& index) {
    return {index.row() * kRowsPerBand + 1, index.column() + 1};
}

SelectCell SelectGridModel::CellOf(const QModelIndex& index, int part) const {
    const CellPlace check = PlaceOf(index);
    return rules_.Cell(check.row + part, check.column);
}

std::vector<QString> SelectGridModel::TextsBeside(const QModelIndex& index, int part) const {
    std::vector<QString> texts;
    const int entry = index.row() * columnCount() + index.column();
    for (const int other : {entry - 1, entry + 1}) {
        const QModelIndex beside =
            this->index(other / columnCount(), other < 0 ? -1 : other % columnCount());
        if (beside.isValid()) texts.push_back(ToQString(CellOf(beside, part).text));
    }
    return texts;
}

void SelectGridModel::Refresh(int firstBand, int lastBand) {
    const int last = std::min(lastBand, rowCount() - 1);
    if (firstBand < 0 || firstBand > last) return;
    emit dataChanged(index(firstBand, 0), index(last, columnCount() - 1));
}

int SelectGridModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : rules_.RowCount() / kRowsPerBand;
}

int SelectGridModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : rules_.ShownColumns();
}

QVariant SelectGridModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) return {};
    switch (role) {
        case Qt::DisplayRole:
            return ToQString(CellOf(index, 1).text);
        case Qt::CheckStateRole: {
            const SelectCell cell = CellOf(index, 0);
            if (cell.kind != SelectCell::Kind::Check) return {};
            return cell.checked ? Qt::Checked : Qt::Unchecked;
        }
        default:
            return {};
    }
}

QVariant SelectGridModel::headerData(int, Qt::Orientation, int) const {
    return {};
}

Qt::ItemFlags SelectGridModel::flags(const QModelIndex& index) const {
    const bool isEntry = CellOf(index, 0).kind == SelectCell::Kind::Check;
    return isEntry ? Qt::ItemIsEnabled | Qt::ItemIsUserCheckable : Qt::NoItemFlags;
}

}  // namespace halvek
