// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/dialogs/Calculator.h>

#include <QGridLayout>
#include <QString>

#include <array>

namespace halvek {

class FlashButton;
class SpokenNotice;

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

    /// Has screen readers say the displayed number: together with a button that gets the focus, or
    /// at once when anything but a typed digit has changed it.
    void Announce();
    void EndFlashes();

  private:
    FlashButton* MakeButton(int index, QWidget* form);
    QString SpokenDisplay() const;
    void SayChange();
    bool IsTyped(const QString& display) const;

    Calculator& rules_;
    std::array<FlashButton*, Calculator::kButtonCount> buttons_{};
    SpokenNotice* notice_;

    // As it was announced
    int focus_;
    QString display_;
    bool numberDone_ = true;
};

}  // namespace halvek
