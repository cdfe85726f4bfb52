// SPDX-License-Identifier: MIT
#include "widgets/CallBox.h"

#include "widgets/Fields.h"

#include <QCheckBox>
#include <QLabel>
#include <QMetaProperty>

#include <cstddef>
#include <limits>
#include <utility>

namespace frontdesk {

namespace {

constexpr int kButtonWidth = 175;
// The first text, the one to cut, keep or search, is the longest.
constexpr int kFirstStretch = 5;

QWidget* MakeField(const QVariant& value) {
    if (value.typeId() == QMetaType::Int) {
        return MakeNumber(value.toInt(), std::numeric_limits<std::int16_t>::min(),
                          std::numeric_limits<std::int16_t>::max());
    }
    if (value.typeId() == QMetaType::Bool) {
        auto* box = new QCheckBox;
        box->setChecked(value.toBool());
        return box;
    }
    return new QLineEdit(value.toString());
}

/// The text of a line, the value of a spin box, whether a box is checked.
QMetaProperty ValueOf(const QWidget& field) {
    return field.metaObject()->userProperty();
}

}  // namespace

CallBox::CallBox(const QString& title, const QString& caption,
                 std::initializer_list<Argument> arguments, Call call)
    : QGroupBox(title),
      call_(std::move(call)),
      button_(MakeButton(caption, [this] { CallNow(); })),
      result_(MakeReadOnlyLine()) {
    auto* rows = new QVBoxLayout(this);
    rows->addLayout(MakeArguments(arguments));
    rows->addLayout(MakeAnswer());
}

QHBoxLayout* CallBox::MakeArguments(std::initializer_list<Argument> arguments) {
    auto* row = new QHBoxLayout;
    for (const Argument& argument : arguments) AddField(*row, argument);
    return row;
}

QHBoxLayout* CallBox::MakeAnswer() {
    button_->setFixedWidth(kButtonWidth);
    result_->setAccessibleName(MemberName() + " returned");
    result_->setPlaceholderText("Result");
    auto* row = new QHBoxLayout;
    row->addWidget(button_);
    row->addWidget(result_);
    return row;
}

void CallBox::AddField(QHBoxLayout& row, const Argument& argument) {
    QWidget* field = MakeField(argument.value);
    if (auto* text = qobject_cast<QLineEdit*>(field)) {
        connect(text, &QLineEdit::returnPressed, button_, &QPushButton::click);
    }
    auto* label = new QLabel(argument.label);
    label->setBuddy(field);
    field->setAccessibleName(argument.label);
    row.addWidget(label);
    row.addWidget(field, fields_.empty() ? kFirstStretch : 1);
    fields_.push_back(field);
}

void CallBox::CallNow() {
    QVariantList arguments;
    for (const QWidget* field : fields_) arguments << ValueOf(*field).read(field);
    result_->setText(call_(arguments));
    result_->setCursorPosition(0);
}

QString CallBox::CallWith(const QVariantList& arguments) {
    for (std::size_t i = 0; i < fields_.size(); ++i) {
        ValueOf(*fields_[i]).write(fields_[i], arguments.at(static_cast<qsizetype>(i)));
    }
    button_->click();
    return result_->text();
}

}  // namespace frontdesk
