// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/refdata/CodesCollection.h>

#include <QAbstractTableModel>

#include <memory>
#include <vector>

namespace frontdesk {

/// The code tables of a collection, one in a row, with all their fields.
class CodesModel : public QAbstractTableModel {
  public:
    /// Shows another collection; null shows none.
    void SetCodes(const std::shared_ptr<halvek::CodesCollection>& codes);

    /// The row of a definition; -1 when it is not shown.
    int RowOf(const std::shared_ptr<halvek::CodeDefinition>& code) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  private:
    std::vector<std::shared_ptr<halvek::CodeDefinition>> codes_;
};

}  // namespace frontdesk
