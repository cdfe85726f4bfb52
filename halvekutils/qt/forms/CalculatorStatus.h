// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/dialogs/Calculator.h>

#include <QGridLayout>

class QLabel;

namespace halvek {

/// The lines below the calculator's display: left operand, last operator, number done.
class CalculatorStatus : public QGridLayout {
    Q_OBJECT

  public:
    explicit CalculatorStatus(QWidget* form);

    void Refresh(const Calculator& rules);

  private:
    QLabel* Add(QWidget* form, const char* name, const QString& caption, int row, int column,
                int columns = 1);

    QLabel* accumulator_;
    QLabel* lastOperator_;
    QLabel* numberDone_;
};

}  // namespace halvek
