// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/dialogs/Calendar.h>
#include <halvekutils/qt/forms/DialogForm.h>

#include <memory>
#include <optional>

class QPushButton;

namespace halvek {

class MonthView;

/// The window of a calendar: the month view and the button that closes it.
class frmCalendar : public DialogForm {
    Q_OBJECT

  public:
    /// `desktop` knows the screens.
    frmCalendar(const std::shared_ptr<Calendar>& rules, const Desktop& desktop);

    bool eventFilter(QObject* watched, QEvent* event) override;

  protected:
    void Refresh() override;
    void showEvent(QShowEvent* event) override;

  private:
    Size LayOut(const Desktop& desktop);
    void FollowPointer(const QWidget& over);

    MonthView* month_;
    QPushButton* todayButton_;
    QPushButton* closeButton_;
    std::optional<QPoint> pointerRestsAt_;  ///< until it first moves
};

}  // namespace halvek
