// SPDX-License-Identifier: MIT
#pragma once

#include "Shown.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QString>

#include <cstddef>
#include <functional>

namespace frontdesk {

/// Ready-made controls for keyboard and screen readers: each has its accessible name.

/// Adds a control under a label that is its buddy; "&" in the label marks the mnemonic.
void AddRow(QFormLayout& form, const QString& label, QWidget* control);

QPushButton* MakeButton(const QString& caption, const std::function<void()>& pressed);
QSpinBox* MakeNumber(int value, int least, int most);
QLineEdit* MakeReadOnlyLine();
/// In a fixed-pitch font.
QPlainTextEdit* MakeReadOnlyText();

/// A combo box of an enumeration's names; the values are its data.
template <class Enum, std::size_t n>
QComboBox* MakeChoice(const Named<Enum> (&table)[n]) {
    auto* choice = new QComboBox;
    for (const Named<Enum>& row : table) choice->addItem(row.name, row.value);
    return choice;
}

/// The value chosen in such a combo box, and choosing one.
template <class Enum>
Enum ChosenIn(const QComboBox& choice) {
    return static_cast<Enum>(choice.currentData().toInt());
}
void Choose(QComboBox& choice, int value);

}  // namespace frontdesk
