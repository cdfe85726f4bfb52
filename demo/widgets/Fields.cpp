// SPDX-License-Identifier: MIT
#include "widgets/Fields.h"

#include "widgets/Buttons.h"
#include "widgets/Card.h"

#include <QAction>
#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>

#include <utility>

namespace frontdesk {

LookupField::LookupField(Desk& desk, const QString& name, const QString& glyph, const QString& tip)
    : desk_(desk) {
    constexpr int kLetters = 22;
    setAccessibleName(name);
    setFixedWidth(fontMetrics().averageCharWidth() * kLetters);
    // Gray can be seen on the colours of required fields too.
    QAction* look = addAction(MakeIcon(glyph, 0x6F7378), QLineEdit::TrailingPosition);
    look->setText(tip);
    connect(look, &QAction::triggered, this, [this] { emit LookedUp(false); });
}

void LookupField::keyPressEvent(QKeyEvent* event) {
    const QString searchBy = desk_.SearchBy(event->key());
    if (searchBy.isEmpty()) return QLineEdit::keyPressEvent(event);
    emit LookedUp(searchBy == "2");
}

CodesField::CodesField(Desk& desk, const QString& table, const QString& name, int most)
    : LookupField(desk, name, "list", "Choose from the list: F2 by code, F3 by description"),
      table_(table),
      most_(most),
      meaning_(MakeNote()) {
    connect(this, &QLineEdit::textChanged, this, &CodesField::Describe);
    ShowAsRequired(*this, desk);
    // A table without a look-up, as the server describes it, can only be typed.
    if (!desk.Library().GetCodesCollection()->Item(table_)->CodeHasLookup()) return;
    connect(this, &LookupField::LookedUp, this, &CodesField::Choose);
}

QString CodesField::Codes() const {
    QStringList codes;
    for (const QString& code : text().split(',')) {
        if (!code.trimmed().isEmpty()) codes << code.trimmed().toUpper();
    }
    return codes.join(',');
}

QString CodesField::UnknownCode() const {
    for (const QString& code : Codes().split(',', Qt::SkipEmptyParts)) {
        if (desk_.Server().Description(table_, code).isEmpty()) return code;
    }
    return {};
}

void CodesField::Describe() {
    QStringList meanings;
    for (const QString& code : Codes().split(',', Qt::SkipEmptyParts)) {
        const QString meaning = desk_.Server().Description(table_, code);
        meanings << (meaning.isEmpty() ? "! " + code + " is not in the list" : meaning);
    }
    meaning_->setText(meanings.join("; "));
}

bool CodesField::Check() {
    QString fault;
    if (Codes().isEmpty()) {
        fault = accessibleName() + " must be filled in.";
    } else if (!UnknownCode().isEmpty()) {
        fault = QString("%1: %2 is not in the list.").arg(accessibleName(), UnknownCode());
    } else if (Codes().count(',') >= most_) {
        fault = QString("%1: choose only %2.").arg(accessibleName()).arg(most_);
    }
    if (fault.isEmpty()) return true;
    desk_.Ask(fault, halvek::mbOkOnly, halvek::mbExclamation, "Check-in");
    setFocus();
    selectAll();
    return false;
}

// What the table does not know is handed over as typed, for the user to complete in the list.
void CodesField::Choose(bool byDescription) {
    const bool isKnown = UnknownCode().isEmpty();
    const auto chosen = desk_.ChooseCodes(table_, isKnown ? Codes() : QString(), this,
                                          byDescription, isKnown ? QString() : text());
    if (chosen) setText(*chosen);
    setFocus();
}

void ShowAsRequired(QLineEdit& field, Desk& desk) {
    const auto show = [&field, &desk] {
        const halvek::Color back = desk.Library().RequiredFieldBackColor();
        SetColors(field, back, halvek::IsDark(back) ? halvek::kWhite : halvek::kBlack);
    };
    QObject::connect(&desk, &Desk::PrefsChanged, &field, show);
    show();
}

FieldForm::FieldForm(Desk& desk) : desk_(desk), rows_(new QGridLayout(this)) {
    rows_->setContentsMargins(0, 0, 0, 0);
    rows_->setHorizontalSpacing(kGap + 2);
    rows_->setVerticalSpacing(kGap);
    rows_->setColumnStretch(1, 1);
    connect(qApp, &QApplication::focusChanged, this,
            [this](const QWidget*, const QWidget* focused) { Follow(focused); });
}

void FieldForm::AddRow(const QString& caption, QWidget* field, QWidget* beside) {
    auto* label = new QLabel(caption);
    label->setObjectName(QString(caption).remove('&'));
    label->setMargin(4);
    label->setBuddy(field);
    auto* row = new QHBoxLayout;
    row->setSpacing(kGap - 4);
    row->addWidget(field);
    if (beside != nullptr) row->addWidget(beside, 100);
    row->addStretch(1);
    const int number = rows_->rowCount();
    rows_->addWidget(label, number, 0);
    rows_->addLayout(row, number, 1);
}

// While a dialog or another program is active, the caption stays as it is.
void FieldForm::Follow(const QWidget* focused) {
    if (focused == nullptr || focused->window() != window()) return;
    QWidget* caption = nullptr;
    for (QLabel* label : findChildren<QLabel*>()) {
        if (label->buddy() == focused) caption = label;
    }
    if (caption == highlighted_) return;
    QWidget* before = std::exchange(highlighted_, caption);
    if (before != nullptr) desk_.Highlight(before, false);
    if (caption != nullptr) desk_.Highlight(caption, true);
}

}  // namespace frontdesk
