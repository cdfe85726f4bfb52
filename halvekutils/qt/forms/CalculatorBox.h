// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/dialogs/Calculator.h>

#include <QLineEdit>

namespace halvek {

/// The calculator's display, which the user may edit.
class CalculatorBox : public QLineEdit {
    Q_OBJECT

  public:
    CalculatorBox(Calculator& rules, QWidget* form);

    /// Shows what the rules have changed.
    void Refresh();

  protected:
    void focusInEvent(QFocusEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    bool IsLeftOfText(const QPoint& place) const;

    Calculator& rules_;
    bool isEntered_ = false;  ///< by the current click
};

}  // namespace halvek
