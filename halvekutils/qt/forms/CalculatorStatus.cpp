// SPDX-License-Identifier: MIT
#include <halvekutils/base/NumericText.h>
#include <halvekutils/qt/QtText.h>
#include <halvekutils/qt/forms/CalculatorStatus.h>
#include <halvekutils/qt/helpers/Design.h>

#include <QLabel>

namespace halvek {

namespace {

constexpr double kFont = 0.9;  // of the desktop's
constexpr int kGrey = 70;      // per cent of the text's colour

void ShowValue(QLabel& label, const std::u16string& text) {
    if (label.text() == ToQString(text)) return;
    label.setText(ToQString(text));
    label.setAccessibleDescription(label.text());
}

QLabel* MakeLabel(QWidget* form, const QString& text = {}) {
    auto* const label = new QLabel(text, form);
    label->setTextFormat(Qt::PlainText);
    label->setFont(design::ScaledFont(kFont));
    QPalette colors = form->palette();
    const QColor ground = colors.color(QPalette::Window);
    const QColor grey = design::Blended(colors.color(QPalette::WindowText), ground, kGrey);
    colors.setColor(QPalette::WindowText, design::Visible(grey, ground, 4.5));
    label->setPalette(colors);
    return label;
}

}  // namespace

CalculatorStatus::CalculatorStatus(QWidget* form)
    : accumulator_(Add(form, "lblMEM", tr("MEM"), 3)),
      lastOperator_(Add(form, "lblOp", tr("last operator"), 0)),
      numberDone_(Add(form, "lblNumDone", tr("number done"), 0)) {
    lastOperator_->setMinimumWidth(lastOperator_->fontMetrics().horizontalAdvance(u'+') * 2);
    numberDone_->setMinimumWidth(
        numberDone_->fontMetrics().horizontalAdvance(QLatin1String("False")));
}

QLabel* CalculatorStatus::Add(QWidget* form, const char* name, const QString& caption,
                              int stretch) {
    auto* const value = MakeLabel(form);
    value->setObjectName(QLatin1String(name));
    value->setAccessibleName(caption);
    if (stretch > 0) value->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    addWidget(MakeLabel(form, caption));
    addWidget(value, stretch);
    return value;
}

void CalculatorStatus::Refresh(const Calculator& rules) {
    ShowValue(*accumulator_, rules.Accumulator());
    ShowValue(*lastOperator_, rules.LastOperator());
    ShowValue(*numberDone_, BooleanText(rules.NumberDone()));
}

}  // namespace halvek
