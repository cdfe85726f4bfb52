// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/selection/SelectGrid.h>

#include <QAbstractTableModel>
#include <QString>

#include <vector>

namespace halvek {

/// The entries of a selection dialog: a row is a band of ten, a cell one entry. Nothing is copied;
/// every question goes to the rules.
class SelectGridModel : public QAbstractTableModel {
    Q_OBJECT

  public:
    SelectGridModel(const SelectGrid& rules, QObject* parent);

    /// The index of an entry's check cell in the rules' grid; invalid for row 0.
    QModelIndex IndexOf(CellPlace place) const;
    /// The check cell of an entry's index.
    static CellPlace PlaceOf(const QModelIndex& index);

    /// One of the three cells of an entry: 0 the check, 1 the code, 2 the description.
    SelectCell CellOf(const QModelIndex& index, int part) const;

    /// The same part's texts of the entries before and after.
    std::vector<QString> TextsBeside(const QModelIndex& index, int part) const;

    /// Makes the views repaint the entries of these bands.
    void Refresh(int firstBand, int lastBand);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

  private:
    const SelectGrid& rules_;
};

}  // namespace halvek
