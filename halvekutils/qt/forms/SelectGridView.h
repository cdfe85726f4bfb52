// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/qt/forms/SelectGridModel.h>

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

    /// Asked before a click moves the focus into the grid; a refused click does nothing.
    std::function<bool()> MayTakeFocus;

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

    /// Asks this before a click moves the focus into the grid; a refused click does nothing.
    void AskBeforeFocus(const std::function<bool()>& mayTakeFocus);

    /// Applies its place and the sizes of its rows and columns.
    void ApplyLayout(const SelectGridLayout& layout);

    /// The rules have changed: repaints what is visible and follows the current entry.
    void Refresh();

    /// Scrolls to the current entry when the dialog opens.
    void ShowCurrent();
    /// Rings the current entry while keys elsewhere act on it, those of the find bar.
    void KeepRing(bool isKept);

    void keyboardSearch(const QString&) override {}

  signals:
    /// Another entry is the current one.
    void CurrentEntryChanged();
    /// Entries were ticked or unticked.
    void TicksChanged();
    /// Enter: OK.
    void Accepted();
    /// The user typed a letter or digit to find an entry, or "/", for which the text is empty.
    void FindAsked(const QString& typed);

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
    bool PressKey(const QKeyEvent& event);
    void Click(const QModelIndex& entry);

    SelectGrid& rules_;
    SelectGridModel model_;
    SelectGridHeader* header_;
    SpokenPicker* spoken_;
    std::function<bool()> mayTakeFocus_;
    QPersistentModelIndex pressed_;
    std::uint32_t shownTicks_ = 0;
    bool keepsRing_ = false;
};

}  // namespace halvek
