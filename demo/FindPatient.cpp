// SPDX-License-Identifier: MIT
#include "FindPatient.h"

#include "Texts.h"
#include "widgets/Buttons.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QStringListModel>
#include <QTimer>

namespace frontdesk {

namespace {

constexpr int kMostFound = 12;
constexpr int kLetters = 30;
constexpr int kLettersFound = 46;

class FindPatient : public QLineEdit {
  public:
    explicit FindPatient(Desk& desk) : desk_(desk) {
        setAccessibleName("Find patient");
        setPlaceholderText("Find patient");
        setToolTip("By name or number (F4)");
        setClearButtonEnabled(true);
        setMaximumWidth(fontMetrics().averageCharWidth() * kLetters);
        addAction(MakeIcon("search"), QLineEdit::LeadingPosition);
        completer_.setModel(&found_);
        completer_.setCompletionMode(QCompleter::UnfilteredPopupCompletion);
        completer_.setMaxVisibleItems(kMostFound);
        completer_.popup()->setMinimumWidth(fontMetrics().averageCharWidth() * kLettersFound);
        setCompleter(&completer_);
        connect(this, &QLineEdit::textEdited, this, &FindPatient::Offer);
        connect(this, &QLineEdit::returnPressed, this, &FindPatient::OpenFirst);
        connect(&completer_, qOverload<const QString&>(&QCompleter::activated), this,
                &FindPatient::Open);
        connect(&desk, &Desk::SearchStarted, this, [this](const QString& text) {
            setFocus();
            setText(text);
            Offer();
            completer_.complete();
        });
    }

  private:
    void Offer() {
        QStringList found;
        for (const Patient& patient : desk_.Server().Search(text(), kMostFound)) {
            const QString number = QString::number(patient.number);
            found << patient.Name() + "   #" + number + "   " + DayText(patient.born);
        }
        found_.setStringList(found);
    }

    void OpenFirst() {
        if (completer_.popup()->isVisible() && completer_.popup()->currentIndex().isValid()) return;
        if (found_.rowCount() == 0 || text().isEmpty()) return;
        completer_.popup()->hide();
        Open(found_.stringList().first());
    }

    void Open(const QString& found) {
        const int number = found.section('#', -1).section(' ', 0, 0).toInt();
        // Afterwards, because the completer still writes the chosen line into the field.
        QTimer::singleShot(0, this, [this, number] {
            clear();
            desk_.OpenAccount(number, ScreenId::Account);
        });
    }

    Desk& desk_;
    QStringListModel found_;
    QCompleter completer_;
};

}  // namespace

QLineEdit* MakeFindPatient(Desk& desk) {
    return new FindPatient(desk);
}

}  // namespace frontdesk
