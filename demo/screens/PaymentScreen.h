// SPDX-License-Identifier: MIT
#pragma once

#include "screens/Screen.h"
#include "widgets/Card.h"
#include "widgets/PrimaryButton.h"

#include <QComboBox>
#include <QLineEdit>
#include <QTableWidget>

namespace frontdesk {

/// Takes a payment, and shows those of the account between two amounts.
class PaymentScreen : public Screen {
    Q_OBJECT

  public:
    explicit PaymentScreen(Desk& desk);

    void Refresh() override;
    QWidget* FirstField() override { return amount_; }
    int HelpContext() const override { return 400; }

    /// Asks for an amount to be posted at once.
    void PostNow(qint64 cents);

  signals:
    void Posted(const QString& what);

  private:
    Card* MakeForm();
    Card* MakePayments();
    void FillMethods();
    void FillPrinters();
    void ShowBalanceAfter();
    void ShowPayments();
    void Calculate();
    void Post();

    QLineEdit* amount_;
    QLineEdit* adjustment_;
    QComboBox* method_;
    QComboBox* printer_;
    QLabel* after_;
    PrimaryButton* post_;
    QLineEdit* from_;
    QLineEdit* to_;
    QTableWidget* payments_;
    int shown_ = 0;  ///< the account
};

}  // namespace frontdesk
