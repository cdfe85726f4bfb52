// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/dialogs/Calendar.h>

#include <QCalendarWidget>

class QAbstractItemView;
class QKeyEvent;

namespace halvek {

class SpokenPicker;

/// MonthView1: shows the month of a calendar's marked day and hands keys and clicks to the rules.
class MonthView : public QCalendarWidget {
    Q_OBJECT

  public:
    MonthView(Calendar& rules, QWidget* parent);

    /// Shows what the rules have changed.
    void Refresh();

    /// Takes the focus, unless a part of the month view has it.
    void TakeFocus();

    bool eventFilter(QObject* watched, QEvent* event) override;

  protected:
    void paintCell(QPainter* painter, const QRect& rect, QDate date) const override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void MakeDaysReadable();
    void MakeArrow(const char* part, Qt::ArrowType arrow);
    void WidenMonthButton();
    void NameParts();
    void KeyDown(const QKeyEvent& event);
    void Speak();
    void PageChanged(int year, int month);

    Calendar& rules_;
    QAbstractItemView* days_;
    SpokenPicker* spoken_;
    QWidget* yearEdit_;
};

}  // namespace halvek
