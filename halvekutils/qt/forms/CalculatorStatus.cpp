// SPDX-License-Identifier: MIT
#include <halvekutils/base/NumericText.h>
#include <halvekutils/qt/QtText.h>
#include <halvekutils/qt/forms/CalculatorStatus.h>

#include <QLabel>

namespace halvek {

namespace {

void ShowValue(QLabel& label, const std::u16string& text) {
    label.setText(ToQString(text));
    label.setAccessibleDescription(label.text());
}

}  // namespace

CalculatorStatus::CalculatorStatus(QWidget* form)
    : accumulator_(Add(form, "lblMEM", tr("MEM"), 0, 0, 3)),
      lastOperator_(Add(form, "lblOp", tr("last operator"), 1, 0)),
      numberDone_(Add(form, "lblNumDone", tr("number done"), 1, 2)) {
    for (const int column : {1, 3}) setColumnStretch(column, 1);
}

QLabel* CalculatorStatus::Add(QWidget* form, const char* name, const QString& caption, int row,
                              int column, int columns) {
    auto* const value = new QLabel(form);
    value->setObjectName(QLatin1String(name));
    value->setTextFormat(Qt::PlainText);
    QFont font = value->font();
    font.setBold(true);
    value->setFont(font);
    value->setAccessibleName(caption);
    value->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    addWidget(new QLabel(caption, form), row, column);
    addWidget(value, row, column + 1, 1, columns);
    return value;
}

void CalculatorStatus::Refresh(const Calculator& rules) {
    ShowValue(*accumulator_, rules.Accumulator());
    ShowValue(*lastOperator_, rules.LastOperator());
    ShowValue(*numberDone_, BooleanText(rules.NumberDone()));
}

}  // namespace halvek
