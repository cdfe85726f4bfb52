// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/dialogs/Calendar.h>
#include <halvekutils/platform/Desktop.h>
#include <halvekutils/qt/forms/DialogShow.h>

#include <QDialog>
#include <QPoint>

#include <memory>
#include <optional>

class QPushButton;

namespace halvek {

class MonthView;

/// The window of a calendar: the month view and the button that closes it.
class frmCalendar : public QDialog {
    Q_OBJECT

  public:
    /// `desktop` knows the screens.
    frmCalendar(std::shared_ptr<Calendar> rules, const Desktop& desktop);
    ~frmCalendar() override;

    /// Shows the calendar until it has ended.
    void ShowModal();

    bool eventFilter(QObject* watched, QEvent* event) override;

  public slots:
    void reject() override;

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;

  private:
    void ApplyLayout(const Desktop& desktop);
    void FollowPointer(const QWidget& over);
    void CloseByUser();
    void Sync();

    std::shared_ptr<Calendar> rules_;
    MonthView* MonthView1_;
    QPushButton* Command1_;
    Point place_;
    std::optional<QPoint> pointerRestsAt_;  ///< until it first moves
    DialogShow show_;
};

}  // namespace halvek
