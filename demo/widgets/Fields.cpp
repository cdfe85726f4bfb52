// SPDX-License-Identifier: MIT
#include "widgets/Fields.h"

#include <QFontDatabase>
#include <QLabel>

namespace frontdesk {

namespace {

constexpr int kButtonPadding = 16;

}  // namespace

void AddRow(QFormLayout& form, const QString& label, QWidget* control) {
    control->setAccessibleName(QString(label).remove('&'));
    form.addRow(label, control);
}

QPushButton* MakeButton(const QString& caption, const std::function<void()>& pressed) {
    auto* button = new QPushButton(caption);
    button->setMinimumWidth(button->sizeHint().width() + kButtonPadding);
    QObject::connect(button, &QPushButton::clicked, button, pressed);
    return button;
}

QSpinBox* MakeNumber(int value, int least, int most) {
    auto* number = new QSpinBox;
    number->setRange(least, most);
    number->setValue(value);
    return number;
}

QLineEdit* MakeReadOnlyLine() {
    auto* line = new QLineEdit;
    line->setReadOnly(true);
    return line;
}

QPlainTextEdit* MakeReadOnlyText() {
    auto* text = new QPlainTextEdit;
    text->setReadOnly(true);
    text->setTabChangesFocus(true);
    text->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    return text;
}

void Choose(QComboBox& choice, int value) {
    choice.setCurrentIndex(choice.findData(value));
}

}  // namespace frontdesk
