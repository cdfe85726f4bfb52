// SPDX-License-Identifier: MIT
#pragma once

#include "screens/ReminderTabs.h"
#include "screens/Screen.h"
#include "widgets/Card.h"
#include "widgets/CodesField.h"
#include "widgets/DateField.h"
#include "widgets/PrimaryButton.h"

#include <QPushButton>

namespace frontdesk {

/// The patient has arrived: insurance, provider, procedures and the next visit. What was typed for
/// an account stays until the visit is checked in.
class CheckInScreen : public Screen {
    Q_OBJECT

  public:
    explicit CheckInScreen(Desk& desk);

    void Refresh() override;
    QWidget* FirstField() override;
    int HelpContext() const override { return 300; }

    QWidget* CalendarButton() { return next_->Button(); }

  signals:
    /// The visit is checked in, and its copay is to be posted at once.
    void PostNow();

  private:
    Card* MakeForm();
    Card* MakeReminders();
    void Fill(const Visit& visit);
    void KeepDraft();
    QString DraftKey() const;
    void ShowCopay();
    bool CheckIn();

    CodesField* insurance_;
    CodesField* provider_;
    CodesField* procedures_;
    DateField* next_;
    ReminderTabs* reminders_;
    QLabel* visit_;
    QLabel* copay_;
    PrimaryButton* checkInAndPost_;
    QPushButton* checkIn_;
    int visitShown_ = 0;
};

}  // namespace frontdesk
