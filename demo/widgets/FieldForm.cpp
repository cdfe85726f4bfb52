// SPDX-License-Identifier: MIT
#include "widgets/FieldForm.h"

#include "widgets/Card.h"

#include <QApplication>
#include <QHBoxLayout>

namespace frontdesk {

FieldForm::FieldForm(Desk& desk) : desk_(desk), grid_(new QGridLayout(this)) {
    grid_->setContentsMargins(0, 0, 0, 0);
    grid_->setHorizontalSpacing(kGap + 2);
    grid_->setVerticalSpacing(kGap);
    grid_->setColumnStretch(1, 1);
    connect(qApp, &QApplication::focusChanged, this,
            [this](const QWidget*, const QWidget* focused) { Follow(focused); });
}

void FieldForm::AddRow(const QString& caption, QWidget* field) {
    auto* label = new QLabel(caption);
    label->setObjectName(QString(caption).remove('&'));
    label->setMargin(4);
    label->setBuddy(field->focusProxy() == nullptr ? field : field->focusProxy());
    const int row = grid_->rowCount();
    grid_->addWidget(label, row, 0);
    grid_->addWidget(field, row, 1);
    rows_.push_back({label, field, false});
}

// While a dialog or another program is active, the caption stays as it is.
void FieldForm::Follow(const QWidget* focused) {
    if (focused == nullptr || focused->window() != window()) return;
    for (Row& row : rows_) {
        const bool isIn = row.field == focused || row.field->isAncestorOf(focused);
        if (isIn == row.isHighlighted) continue;
        row.isHighlighted = isIn;
        desk_.Highlight(row.caption, isIn);
    }
}

QWidget* Beside(QWidget* field, QWidget* button) {
    auto* both = new QWidget;
    auto* row = new QHBoxLayout(both);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(4);
    row->addWidget(field);
    row->addWidget(button);
    row->addStretch();
    both->setFocusProxy(field);
    return both;
}

}  // namespace frontdesk
