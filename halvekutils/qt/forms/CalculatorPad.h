// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/dialogs/Calculator.h>

#include <QGridLayout>

#include <array>

namespace halvek {

class FlashButton;

/// The buttons of the calculator as the user sees them. They belong to the form, which sees their
/// events first.
class CalculatorPad : public QGridLayout {
    Q_OBJECT

  public:
    CalculatorPad(Calculator& rules, QWidget* form);

    /// One of the buttons.
    FlashButton* Button(int index) const { return buttons_[static_cast<std::size_t>(index)]; }
    /// The number of a button; Calculator::kBox for anything else.
    int IndexOf(const QObject* object) const;

    /// Adds the displayed number to what screen readers say of the focused button.
    void Announce();
    void EndFlashes();

  private:
    FlashButton* MakeButton(int index, QWidget* form);

    Calculator& rules_;
    std::array<FlashButton*, Calculator::kButtonCount> buttons_{};
};

}  // namespace halvek
