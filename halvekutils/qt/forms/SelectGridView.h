// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/qt/forms/SelectGridModel.h>

#include <QElapsedTimer>
#include <QHeaderView>
#include <QTableView>

#include <functional>

namespace halvek {

struct SelectGridLayout;
class SpokenPicker;

/// Row 0 of the grid: one strip over all columns that accepts the choice when it is clicked.
class SelectGridHeader : public QHeaderView {
    Q_OBJECT

  public:
    SelectGridHeader(SelectGrid& rules, QWidget* parent);

    /// The rules have changed.
    void Refresh();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    bool viewportEvent(QEvent* event) override;

  private:
    SelectGrid& rules_;
    SelectCell cell_;
    bool pressed_ = false;
};

/// grdSelection: shows the entries of a selection dialog and hands keys and clicks to the rules.
class SelectGridView : public QTableView {
    Q_OBJECT

  public:
    SelectGridView(SelectGrid& rules, QWidget* parent);

    /// Asked before a click moves the focus into the grid; a refused click does nothing.
    std::function<bool()> MayTakeFocus;

    /// Applies its place and the sizes of its rows and columns.
    void ApplyLayout(const SelectGridLayout& layout);

    /// The rules have changed: repaints what is visible and follows the current entry.
    void Refresh();

    void keyboardSearch(const QString&) override {}

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void initViewItemOption(QStyleOptionViewItem* option) const override;

  private:
    bool TypeLetter(const QKeyEvent& event);
    void Click(const QModelIndex& entry);

    SelectGrid& rules_;
    SelectGridModel model_;
    SelectGridHeader* header_;
    SpokenPicker* spoken_;
    QPersistentModelIndex pressed_;
    QElapsedTimer sinceLetter_;
};

}  // namespace halvek
