// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/dialogs/Calculator.h>

#include <QHBoxLayout>

class QLabel;

namespace halvek {

/// The line below the calculator's display: left operand, last operator, number done.
class CalculatorStatus : public QHBoxLayout {
    Q_OBJECT

  public:
    explicit CalculatorStatus(QWidget* form);

    void Refresh(const Calculator& rules);

  private:
    QLabel* Add(QWidget* form, const char* name, const QString& caption, int stretch);

    QLabel* accumulator_;
    QLabel* lastOperator_;
    QLabel* numberDone_;
};

}  // namespace halvek
