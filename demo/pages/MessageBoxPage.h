// SPDX-License-Identifier: MIT
#pragma once

#include "Desk.h"
#include "Page.h"
#include "pages/MessageBoxSamples.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSpinBox>

#include <vector>

namespace frontdesk {

/// The message box with all its arguments to edit.
class MessageBoxPage : public Page {
  public:
    explicit MessageBoxPage(Desk& desk);

    int HelpContext() const override { return kPaymentsTopic; }
    void Play(Tour& tour) override;

    /// Enters the arguments, presses "Show" and returns the box's answer.
    halvek::MbMsgBoxResult ShowWith(const BoxArguments& arguments);

  private:
    QLayout* MakePrompt();
    QLayout* MakeArguments();
    void Enter(const BoxArguments& arguments);
    BoxArguments Entered() const;
    void Show();
    void Note(const BoxArguments& before, const BoxArguments& after);

    Desk& desk_;
    std::vector<BoxSample> samples_;
    QComboBox sample_;
    QPlainTextEdit prompt_;
    QLineEdit title_;
    QComboBox* buttons_;
    QComboBox* icon_;
    QComboBox* background_;
    QComboBox* fontSize_;
    QCheckBox bold_;
    QSpinBox* countdown_;
    QPushButton* show_;
    QLineEdit* returned_;
    halvek::MbMsgBoxResult result_ = halvek::kNotAnswered;
};

}  // namespace frontdesk
