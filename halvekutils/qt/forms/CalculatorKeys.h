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

    /// True when the key is dealt with; any other goes on to the box.
    bool Take(const QKeyEvent& key);
    /// Pastes the clipboard's text over the selection in the box.
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
