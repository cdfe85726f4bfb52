// SPDX-License-Identifier: MIT
#pragma once

#include "Desk.h"
#include "widgets/Card.h"

#include <QWidget>

namespace frontdesk {

/// A screen of the client.
class Screen : public QWidget {
  public:
    explicit Screen(Desk& desk) : desk_(desk), column_(new QVBoxLayout(this)) {
        column_->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
        column_->setSpacing(kMargin);
    }

    /// Shows the current patient.
    virtual void Refresh() = 0;
    /// Where the keyboard goes when the screen opens.
    virtual QWidget* FirstField() = 0;
    /// The number of its page in the help file.
    virtual int HelpContext() const = 0;

  protected:
    Desk& desk_;
    QVBoxLayout* column_;
};

// The screens; nobody knows more of them.

/// The visits of a day, in the colours of their reasons; who is due has a mark.
Screen* MakeScheduleScreen(Desk& desk);
/// What is known of the account's patient, with reminders, visits and payments.
Screen* MakeAccountScreen(Desk& desk);
/// The patient has arrived: insurance, provider, procedures and the next visit.
Screen* MakeCheckInScreen(Desk& desk);
/// Takes a payment, and shows those of the account between two amounts.
Screen* MakePaymentScreen(Desk& desk);

}  // namespace frontdesk
