// SPDX-License-Identifier: MIT
#pragma once

#include "screens/ReminderTabs.h"
#include "screens/Screen.h"
#include "widgets/Card.h"
#include "widgets/PrimaryButton.h"

#include <QFormLayout>
#include <QPushButton>
#include <QTableWidget>

namespace frontdesk {

/// The patient of the account: what is known, reminders, visits and payments. What the user may not
/// do is disabled.
class AccountScreen : public Screen {
  public:
    explicit AccountScreen(Desk& desk);

    void Refresh() override;
    QWidget* FirstField() override;
    int HelpContext() const override { return 200; }

  private:
    Card* MakeFacts();
    Card* MakeReminders();
    Card* MakeVisits();
    Card* MakePayments();
    QLabel* AddFact(QFormLayout& facts, const QString& name);
    void EnableButtons();
    void ShowReminders();
    void ShowVisits();
    void ShowPayments();
    void CancelVisit();
    void WriteOff();

    QLabel* phone_ = nullptr;
    QLabel* address_ = nullptr;
    QLabel* insurance_ = nullptr;
    QLabel* policy_ = nullptr;
    QLabel* balance_ = nullptr;
    ReminderTabs* reminders_;
    QTableWidget* visits_;
    QTableWidget* payments_;
    PrimaryButton* checkIn_;
    QPushButton* pay_;
    QPushButton* cancel_;
    QPushButton* writeOff_;
    int alerted_ = 0;  ///< the account for which the alert sounded last
};

}  // namespace frontdesk
