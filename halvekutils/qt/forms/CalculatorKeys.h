// SPDX-License-Identifier: MIT
#pragma once

#include <QClipboard>

class QKeyEvent;
class QLineEdit;

namespace halvek {

class Calculator;

/// What the keyboard and the clipboard do to a calculator.
class CalculatorKeys {
  public:
    /// `box` mirrors the display.
    CalculatorKeys(Calculator& rules, QLineEdit& box) : rules_(rules), box_(box) {}

    /// Whether the key is done with; any other goes on to the box.
    bool Take(const QKeyEvent& key);
    /// Hands the clipboard's text over, in the place of what is selected in the box.
    void Paste(QClipboard::Mode mode);

  private:
    void Type(char16_t character);
    bool IsInBox() const;
    bool BoxIsFull() const;
    void Copy() const;

    Calculator& rules_;
    QLineEdit& box_;
};

}  // namespace halvek
