// SPDX-License-Identifier: MIT
#pragma once

#include "Desk.h"
#include "Page.h"

#include <QComboBox>
#include <QLineEdit>
#include <QToolButton>

namespace frontdesk {

/// A field for an amount, as a host has it, with a button that opens the calculator.
class CalculatorPage : public Page {
  public:
    explicit CalculatorPage(Desk& desk);

    void Play(Tour& tour) override;

    /// Enters an amount, presses the button and returns the result.
    QString CalculateFrom(const QString& amount);

  private:
    QLayout* MakeAmount();
    void Calculate();

    Desk& desk_;
    QComboBox sample_;
    QLineEdit amount_;
    QToolButton calculate_;
    QLineEdit* returned_;
    QString result_;
};

}  // namespace frontdesk
