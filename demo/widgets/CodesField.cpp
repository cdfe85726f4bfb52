// SPDX-License-Identifier: MIT
#include "widgets/CodesField.h"

#include "widgets/Icons.h"
#include "widgets/RequiredColor.h"

#include <halvekutils/qt/QtText.h>

#include <QHBoxLayout>
#include <QKeyEvent>

namespace frontdesk {

namespace {

constexpr int kLetters = 18;

}  // namespace

CodesField::CodesField(Desk& desk, const QString& table, const QString& name, int most)
    : desk_(desk),
      table_(table),
      name_(name),
      most_(most),
      line_(new QLineEdit),
      button_(new QToolButton),
      meaning_(MakeNote()) {
    line_->setAccessibleName(name_);
    line_->setFixedWidth(line_->fontMetrics().averageCharWidth() * kLetters);
    button_->setIcon(MakeIcon(Glyph::List));
    button_->setFocusPolicy(Qt::StrongFocus);
    button_->setAccessibleName("Choose: " + name_);
    button_->setToolTip("Choose from the list: F2 by code, F3 by description");
    // A table without a look-up, as the server describes it, can only be typed.
    const auto codes = desk_.Library().GetCodesCollection();
    button_->setEnabled(codes->Item(table_)->CodeHasLookup());
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(4);
    row->addWidget(line_);
    row->addWidget(button_);
    row->addSpacing(6);
    row->addWidget(meaning_, 1);
    setFocusProxy(line_);
    line_->installEventFilter(this);
    connect(button_, &QToolButton::clicked, this, [this] { Choose(false); });
    connect(line_, &QLineEdit::textChanged, this, [this] {
        Describe();
        emit Changed();
    });
    connect(&desk_, &Desk::PrefsChanged, this, [this] { ShowAsRequired(*line_, desk_.Library()); });
    ShowAsRequired(*line_, desk_.Library());
}

QString CodesField::Codes() const {
    QStringList codes;
    for (const QString& code : line_->text().split(',')) {
        if (!code.trimmed().isEmpty()) codes << code.trimmed().toUpper();
    }
    return codes.join(',');
}

void CodesField::SetCodes(const QString& codes) {
    line_->setText(codes);
    line_->setCursorPosition(0);
}

QString CodesField::UnknownCode() const {
    for (const QString& code : Codes().split(',', Qt::SkipEmptyParts)) {
        if (!desk_.Server().Description(table_, code)) return code;
    }
    return {};
}

void CodesField::Describe() {
    const QStringList codes = Codes().split(',', Qt::SkipEmptyParts);
    QStringList meanings;
    for (const QString& code : codes) {
        meanings << desk_.Server()
                        .Description(table_, code)
                        .value_or("! " + code + " is not in the list");
    }
    meaning_->setText(meanings.join("; "));
}

bool CodesField::Check() {
    QString fault;
    if (Codes().isEmpty()) {
        fault = name_ + " must be filled in.";
    } else if (!UnknownCode().isEmpty()) {
        fault = QString("%1: %2 is not in the list.").arg(name_, UnknownCode());
    } else if (Codes().count(',') >= most_) {
        fault = QString("%1: choose only %2.").arg(name_).arg(most_);
    }
    if (fault.isEmpty()) return true;
    desk_.Ask(fault, halvek::mbOkOnly, halvek::mbExclamation, "Check-in");
    line_->setFocus();
    line_->selectAll();
    return false;
}

// What the table does not know is handed over as typed, for the user to complete in the list.
void CodesField::Choose(bool byDescription) {
    if (!button_->isEnabled()) return;
    const bool isKnown = UnknownCode().isEmpty();
    const auto chosen = desk_.ChooseCodes(table_, isKnown ? Codes() : QString(), button_,
                                          byDescription, isKnown ? QString() : line_->text());
    if (chosen) SetCodes(*chosen);
    line_->setFocus();
}

bool CodesField::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        const QString searchBy = desk_.SearchBy(static_cast<QKeyEvent*>(event)->key());
        if (!searchBy.isEmpty()) {
            Choose(searchBy == "2");
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

}  // namespace frontdesk
