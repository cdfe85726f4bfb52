// SPDX-License-Identifier: MIT
#include "pages/CalculatorPage.h"

#include "pages/CalculatorPlay.h"
#include "widgets/Fields.h"

#include <halvekutils/qt/QtText.h>

#include <QHBoxLayout>
#include <QLabel>

namespace frontdesk {

namespace {

struct Sample {
    const char* name;
    const char* amount;
};

constexpr Sample kSamples[] = {
    {"A charge", "$1,234.50"}, {"A credit", "(45.00)"},       {"Three decimals", "12.345"},
    {"Nothing", ""},           {"No number", "to be billed"}, {"The largest numbers", "9E+307"},
};

}  // namespace

CalculatorPage::CalculatorPage(Desk& desk)
    : Page("Calc&ulator",
           "Lets the user work out an amount. Press Enter in the field, or the button beside it."),
      desk_(desk),
      returned_(MakeReadOnlyLine()) {
    for (const Sample& sample : kSamples) sample_.addItem(sample.name, sample.amount);
    auto* form = new QFormLayout;
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    AddRow(*form, "Sa&mple", &sample_);
    auto* label = new QLabel("&Amount");
    label->setBuddy(&amount_);
    form->addRow(label, MakeAmount());
    AddRow(*form, "&Returned", returned_);
    Body().addLayout(form);
    Body().addStretch();
    connect(&sample_, &QComboBox::activated, this,
            [this] { amount_.setText(sample_.currentData().toString()); });
    connect(&calculate_, &QToolButton::clicked, this, [this] { Calculate(); });
    connect(&amount_, &QLineEdit::returnPressed, &calculate_, &QToolButton::click);
    amount_.setText(kSamples[0].amount);
}

QLayout* CalculatorPage::MakeAmount() {
    amount_.setAccessibleName("Amount");
    calculate_.setText("=");
    calculate_.setFocusPolicy(Qt::StrongFocus);
    calculate_.setAccessibleName("Calculate");
    calculate_.setToolTip("Calculate (Enter)");
    auto* row = new QHBoxLayout;
    row->setSpacing(1);
    row->addWidget(&amount_);
    row->addWidget(&calculate_);
    return row;
}

void CalculatorPage::Calculate() {
    const QString amount = amount_.text();
    result_ = halvek::ToQString(desk_.Library().Calculate(amount));
    returned_->setText(result_);
    if (!result_.isEmpty()) amount_.setText(result_);
    desk_.Calls().Add("Calculate", Args(amount), Shown(result_));
}

QString CalculatorPage::CalculateFrom(const QString& amount) {
    amount_.setText(amount);
    calculate_.click();
    return result_;
}

void CalculatorPage::Play(Tour& tour) {
    PlayCalculations(*this, tour);
}

}  // namespace frontdesk
