// SPDX-License-Identifier: MIT
#include "FindPatient.h"

#include "Texts.h"
#include "widgets/Icons.h"

#include <QAbstractItemView>
#include <QTimer>

namespace frontdesk {

namespace {

constexpr int kMostFound = 12;
constexpr int kLetters = 30;
constexpr int kLettersFound = 46;
constexpr int kNumberRole = Qt::UserRole;

}  // namespace

FindPatient::FindPatient(Desk& desk) : desk_(desk) {
    setAccessibleName("Find patient");
    setPlaceholderText("Find patient");
    setToolTip("By name or number (F4)");
    setClearButtonEnabled(true);
    setMaximumWidth(fontMetrics().averageCharWidth() * kLetters);
    addAction(MakeIcon(Glyph::Search), QLineEdit::LeadingPosition);
    completer_.setModel(&found_);
    completer_.setCompletionMode(QCompleter::UnfilteredPopupCompletion);
    completer_.setMaxVisibleItems(kMostFound);
    completer_.popup()->setMinimumWidth(fontMetrics().averageCharWidth() * kLettersFound);
    setCompleter(&completer_);
    connect(this, &QLineEdit::textEdited, this, [this] { Offer(); });
    connect(this, &QLineEdit::returnPressed, this, [this] { OpenFirst(); });
    connect(&completer_, qOverload<const QModelIndex&>(&QCompleter::activated), this,
            [this](const QModelIndex& index) { Open(index); });
}

QSize FindPatient::sizeHint() const {
    return {fontMetrics().averageCharWidth() * kLetters, QLineEdit::sizeHint().height()};
}

void FindPatient::StartWith(const QString& text) {
    setFocus();
    setText(text);
    Offer();
    completer_.complete();
}

void FindPatient::Offer() {
    found_.clear();
    for (const Patient& patient : desk_.Server().Search(text(), kMostFound)) {
        auto* item = new QStandardItem(QString("%1   #%2   %3")
                                           .arg(patient.Name())
                                           .arg(patient.number)
                                           .arg(DayText(patient.born)));
        item->setData(patient.number, kNumberRole);
        found_.appendRow(item);
    }
}

void FindPatient::Open(const QModelIndex& found) {
    const int number = found.data(kNumberRole).toInt();
    // Afterwards, because the completer still writes the chosen line into the field.
    QTimer::singleShot(0, this, [this, number] {
        clear();
        desk_.OpenAccount(number, ScreenId::Account);
    });
}

void FindPatient::OpenFirst() {
    if (completer_.popup()->isVisible() && completer_.popup()->currentIndex().isValid()) return;
    if (found_.rowCount() > 0 && !text().isEmpty()) {
        completer_.popup()->hide();
        Open(found_.index(0, 0));
    }
}

}  // namespace frontdesk
