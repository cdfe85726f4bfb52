// SPDX-License-Identifier: MIT
#pragma once

#include "screens/ScheduleModel.h"
#include "screens/ScheduleView.h"
#include "screens/Screen.h"
#include "widgets/PrimaryButton.h"

#include <QLabel>
#include <QToolButton>

namespace frontdesk {

/// The visits of a day, in the colours of their reasons; who is due has a mark.
class ScheduleScreen : public Screen {
    Q_OBJECT

  public:
    explicit ScheduleScreen(Desk& desk);

    void Refresh() override;
    QWidget* FirstField() override { return view_; }
    int HelpContext() const override { return 100; }

    /// Goes to the patient who is due, if somebody is.
    void GoToDue();

  protected:
    void resizeEvent(QResizeEvent* event) override;

  signals:
    void SearchStarted(const QString& text);

  private:
    QLayout* MakeHeading();
    QWidget* MakeFoot();
    void ShowDay(const QDate& day);
    void ShowVisit(const QModelIndex& cell);
    void ChooseDay();

    ScheduleModel model_;
    ScheduleView* view_;
    QLabel* day_;
    QToolButton* choose_;
    QWidget* legend_;
    QWidget* foot_;
    QLabel* visit_;
    PrimaryButton* checkIn_;
};

}  // namespace frontdesk
