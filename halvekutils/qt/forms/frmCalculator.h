// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/dialogs/Calculator.h>
#include <halvekutils/qt/forms/CalculatorKeys.h>
#include <halvekutils/qt/forms/DialogForm.h>

#include <memory>

namespace halvek {

class CalculatorBox;
class CalculatorPad;
class CalculatorStatus;

/// The window of the calculator.
class frmCalculator : public DialogForm {
    Q_OBJECT

  public:
    /// `desktop` knows the frames of windows.
    frmCalculator(const std::shared_ptr<Calculator>& rules, const Desktop& desktop);
    ~frmCalculator() override;

    /// Handles a key from the host's keyboard hook, by its virtual key code. A host calls it by
    /// name:
    ///
    /// @code{.cpp}
    /// QMetaObject::invokeMethod(QApplication::activeModalWidget(), "HookedKeyDown",
    ///                           Q_ARG(int, keyCode));
    /// @endcode
    Q_INVOKABLE void HookedKeyDown(int KeyCode);

  protected:
    void Refresh() override;
    QPoint PlaceOf(const QWidget* owner) const override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;

  private:
    QWidget* FocusedControl() const;
    bool BoxEvent(QEvent& event);
    bool ButtonEvent(QEvent& event);

    Calculator& rules_;
    const Desktop& desktop_;
    CalculatorBox* box_;
    CalculatorStatus* status_;
    CalculatorPad* pad_;
    CalculatorKeys keys_;
};

}  // namespace halvek
