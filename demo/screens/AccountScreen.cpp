// SPDX-License-Identifier: MIT
#include "Texts.h"
#include "screens/ReminderTabs.h"
#include "screens/Screen.h"
#include "widgets/Buttons.h"
#include "widgets/Card.h"
#include "widgets/Tables.h"

#include <QApplication>
#include <QFormLayout>
#include <QGridLayout>
#include <QLabel>
#include <QList>
#include <QPushButton>
#include <QTabWidget>
#include <QTableWidget>

namespace frontdesk {

namespace {

constexpr char kTitle[] = "Account";

/// The patient of the account: what is known, reminders, visits and payments. What the user may not
/// do is disabled.
class AccountScreen : public Screen {
  public:
    explicit AccountScreen(Desk& desk);

    void Refresh() override;
    QWidget* FirstField() override { return checkIn_->isEnabled() ? checkIn_ : pay_; }
    int HelpContext() const override { return 200; }

  private:
    QWidget* MakeFacts();
    void EnableButtons();
    void Remind();
    void CancelVisit();
    void WriteOff();

    QList<QLabel*> facts_;
    QTabWidget* reminders_;
    QTableWidget* visits_;
    QTableWidget* payments_;
    QPushButton* checkIn_;
    QPushButton* pay_;
    QPushButton* cancel_;
    QPushButton* writeOff_;
    int alerted_ = 0;  ///< the account whose reminders were shown last; its alert is over
};

AccountScreen::AccountScreen(Desk& desk)
    : Screen(desk),
      reminders_(new QTabWidget),
      visits_(MakeList("Visits", {"Day", "Time", "Provider", "Procedures", "State"})),
      payments_(MakeList("Payments", {"Posted", "Amount", "Adjustment", "By"})),
      checkIn_(MakePrimaryButton("Check in")),
      pay_(MakeButton("Take pa&yment")),
      cancel_(MakeButton("Ca&ncel visit...")),
      writeOff_(MakeButton("Wri&te off...")) {
    column_->addWidget(new Columns(MakeFacts(), 2, new Card("Reminders", reminders_), 3));
    column_->addWidget(
        new Columns(new Card("Visits", visits_), 3, new Card("Payments", payments_), 2), 1);
    connect(checkIn_, &QPushButton::clicked, this, [this] { emit desk_.GoTo(ScreenId::CheckIn); });
    connect(pay_, &QPushButton::clicked, this, [this] { emit desk_.GoTo(ScreenId::Payment); });
    connect(cancel_, &QPushButton::clicked, this, &AccountScreen::CancelVisit);
    connect(writeOff_, &QPushButton::clicked, this, &AccountScreen::WriteOff);
}

QWidget* AccountScreen::MakeFacts() {
    auto* card = new Card("Patient");
    auto* facts = new QFormLayout;
    facts->setHorizontalSpacing(kMargin);
    facts->setVerticalSpacing(6);
    for (const char* name : {"Phone", "Address", "Insurance", "Policy", "Balance"}) {
        facts_ << new QLabel;
        facts_.last()->setTextFormat(Qt::PlainText);
        facts->addRow(MakeNote(name), facts_.last());
    }
    auto* buttons = new QGridLayout;
    buttons->setSpacing(kGap);
    buttons->addWidget(checkIn_, 0, 0);
    buttons->addWidget(pay_, 0, 1);
    buttons->addWidget(cancel_, 1, 0);
    buttons->addWidget(writeOff_, 1, 1);
    card->Content().addLayout(facts);
    card->Content().addStretch();
    card->Content().addLayout(buttons);
    return card;
}

void AccountScreen::Refresh() {
    const auto& patient = desk_.Current();
    EnableButtons();
    if (!patient) return;
    const QString insurance = desk_.Server().Description("INS", patient->insurance);
    const QStringList texts = {patient->phone, patient->address,
                               insurance.isEmpty() ? patient->insurance : insurance,
                               patient->policy, Money(patient->balance)};
    for (int i = 0; i < texts.size(); ++i) facts_[i]->setText(texts[i]);
    Remind();
    visits_->setRowCount(0);
    for (const Visit& visit : desk_.Server().VisitsOf(patient->number)) {
        AddRow(*visits_, {DayText(visit.day), TimeText(visit.time), visit.provider,
                          visit.procedures, StateName(visit.state)});
    }
    payments_->setRowCount(0);
    for (const Payment& payment : desk_.Server().Payments(patient->number)) {
        AddRow(*payments_, {DayText(payment.posted.date()), Money(payment.amount),
                            AdjustmentText(payment.adjustment), payment.method});
    }
}

void AccountScreen::EnableButtons() {
    const auto visit = desk_.VisitOfToday();
    const bool isDue = visit && visit->state < VisitState::CheckedIn;
    const bool isOpen = desk_.Current().has_value();
    checkIn_->setEnabled(isDue && desk_.Rights("SCHEDULE")->AllowModify());
    pay_->setEnabled(isOpen && desk_.Rights("PAYMENTS")->AllowAdd());
    cancel_->setEnabled(isDue && desk_.Rights("SCHEDULE")->AllowDelete());
    const bool mayWriteOff = desk_.Rights("WRITEOFFS")->AllowAdd();
    writeOff_->setEnabled(isOpen && mayWriteOff);
    writeOff_->setToolTip(mayWriteOff ? "" : "Your rights do not include write-offs");
}

void AccountScreen::Remind() {
    const halvek::ReminderDefinition reminder = desk_.RemindersOfAccount();
    ShowReminders(*reminders_, reminder);
    if (!isVisible()) return;
    const int number = desk_.Current()->number;
    if (reminder.SoundAlert() && alerted_ != number) QApplication::beep();
    alerted_ = number;
}

void AccountScreen::CancelVisit() {
    const auto visit = desk_.VisitOfToday();
    if (!visit) return;
    const QString question = QString("Cancel the visit of %1 at %2?\r\n\r\nThis cannot be undone.")
                                 .arg(visit->patientName, TimeText(visit->time));
    if (desk_.Ask(question, halvek::mbYesNo, halvek::mbTrash, kTitle) != halvek::mbYes) return;
    desk_.Server().CancelVisit(visit->id);
    desk_.NotePracticeChanged();
}

void AccountScreen::WriteOff() {
    const Patient patient = *desk_.Current();
    const QString question = "Write off " + Money(patient.balance) + '?';
    if (desk_.Ask(question, halvek::mbYesNo, halvek::mbExclamation, kTitle) != halvek::mbYes)
        return;
    desk_.Server().Post({patient.number, {}, 0, -patient.balance, "Write-off", ""});
    desk_.NotePracticeChanged();
}

}  // namespace

Screen* MakeAccountScreen(Desk& desk) {
    return new AccountScreen(desk);
}

}  // namespace frontdesk
