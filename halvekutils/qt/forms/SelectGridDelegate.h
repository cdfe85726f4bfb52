// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/qt/forms/SelectGridModel.h>

#include <QAbstractItemDelegate>
#include <QString>

#include <functional>
#include <vector>

namespace halvek {

/// Draws the entries of a selection dialog: check mark, code and description below each other, as
/// the rules style them.
class SelectGridDelegate : public QAbstractItemDelegate {
    Q_OBJECT

  public:
    /// @param descriptionHeight  of the lowest part, in pixels; the check and the code share the
    ///     rest
    SelectGridDelegate(const SelectGridModel& model, int descriptionHeight, QObject* parent);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;

  private:
    QRect PartOf(const QRect& cell, int part) const;

    const SelectGridModel& model_;
    int descriptionHeight_;
};

/// Gives the texts beside one that does not fit.
using TextsBeside = std::function<std::vector<QString>()>;

/// Draws a text of a cell, cut with an ellipsis where it does not fit: at its end, or in its middle
/// if a text beside it would then read the same.
void DrawCellText(QPainter& painter, const QRect& area, const SelectCell& cell, const QColor& color,
                  const TextsBeside& beside = {});

}  // namespace halvek
