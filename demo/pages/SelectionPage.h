// SPDX-License-Identifier: MIT
#pragma once

#include "Desk.h"
#include "Page.h"
#include "pages/SelectionSamples.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QToolButton>

#include <string>
#include <vector>

namespace frontdesk {

/// A field of codes, as a host has it, with the list from which they are chosen.
class SelectionPage : public Page {
  public:
    explicit SelectionPage(Desk& desk);

    int HelpContext() const override { return kCodesTopic; }
    void Play(Tour& tour) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

    const std::vector<SelectionSample>& Samples() const { return samples_; }

    /// The current arguments.
    SelectionArguments Entered() const;
    void Enter(const SelectionArguments& arguments);
    /// Enters the positions beside the button.
    void EnterPositions();

    /// Presses the button beside the field of codes, or a key in the field. Returns the result.
    QString Choose();
    QString TypeIntoCodes(QChar letter);

    /// The button beside which the list opens.
    QWidget& Target() { return choose_; }

  private:
    void AddArguments(QFormLayout& form);
    QLayout* MakeCodes();
    QWidget* MakePositions();
    void EnableArguments();
    void Show();
    std::u16string Call(const SelectionArguments& arguments, std::u16string& typed);
    void Note(const SelectionArguments& arguments);

    Desk& desk_;
    std::vector<SelectionSample> samples_;
    QComboBox sample_;
    QLineEdit listName_;
    QString allValues_;
    QLineEdit* valuesShown_;
    QLineEdit codes_;
    QToolButton choose_;
    QLineEdit typed_;
    QComboBox* member_;
    QCheckBox noDeleted_;
    QWidget positions_;
    QSpinBox* posLeft_;
    QSpinBox* posTopUp_;
    QSpinBox* posTopDown_;
    QPushButton* calculate_;
    QLineEdit* returned_;
    QString result_;
};

}  // namespace frontdesk
