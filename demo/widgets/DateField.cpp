// SPDX-License-Identifier: MIT
#include "widgets/DateField.h"

#include <QHBoxLayout>

#include <utility>

namespace frontdesk {

namespace {

constexpr int kLineWidth = 140;

}  // namespace

DateField::DateField(const QString& name, Choose choose) : choose_(std::move(choose)) {
    line_.setAccessibleName(name);
    line_.setFixedWidth(kLineWidth);
    button_.setText("...");
    button_.setFocusPolicy(Qt::StrongFocus);
    button_.setAccessibleName("Calendar: " + name);
    button_.setToolTip("Choose from a calendar (Enter)");
    setFocusProxy(&line_);
    setFocusPolicy(Qt::StrongFocus);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(1);
    row->addWidget(&line_);
    row->addWidget(&button_);
    row->addStretch();
    connect(&line_, &QLineEdit::returnPressed, &button_, &QToolButton::click);
    connect(&button_, &QToolButton::clicked, this, [this] {
        chosen_ = choose_(*this);
        if (!chosen_.isEmpty()) SetDate(chosen_);
    });
}

QString DateField::PressButton() {
    button_.click();
    return chosen_;
}

}  // namespace frontdesk
