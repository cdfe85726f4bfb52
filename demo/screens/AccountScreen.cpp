// SPDX-License-Identifier: MIT
#include "screens/AccountScreen.h"

#include "Texts.h"
#include "screens/ScheduleModel.h"
#include "widgets/Buttons.h"
#include "widgets/Columns.h"
#include "widgets/List.h"

#include <QApplication>
#include <QLabel>

namespace frontdesk {

namespace {

constexpr char kTitle[] = "Account";

}  // namespace

AccountScreen::AccountScreen(Desk& desk)
    : Screen(desk),
      reminders_(new ReminderTabs),
      visits_(MakeList("Visits", {"Day", "Time", "Provider", "Procedures", "State"})),
      payments_(MakeList("Payments", {"Posted", "Amount", "Adjustment", "By"})),
      checkIn_(new PrimaryButton("Chec&k in")),
      pay_(MakeButton("Take pa&yment")),
      cancel_(MakeButton("Ca&ncel visit...")),
      writeOff_(MakeButton("Wri&te off...")) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    column->setSpacing(kMargin);
    column->addWidget(new Columns(MakeFacts(), 2, MakeReminders(), 3));
    column->addWidget(new Columns(MakeVisits(), 3, MakePayments(), 2), 1);
    connect(checkIn_, &QPushButton::clicked, this,
            [this] { emit TheDesk().GoTo(ScreenId::CheckIn); });
    connect(pay_, &QPushButton::clicked, this, [this] { emit TheDesk().GoTo(ScreenId::Payment); });
    connect(cancel_, &QPushButton::clicked, this, [this] { CancelVisit(); });
    connect(writeOff_, &QPushButton::clicked, this, [this] { WriteOff(); });
}

Card* AccountScreen::MakeFacts() {
    auto* card = new Card("Patient");
    auto* facts = new QFormLayout;
    facts->setHorizontalSpacing(kMargin);
    facts->setVerticalSpacing(6);
    phone_ = AddFact(*facts, "Phone");
    address_ = AddFact(*facts, "Address");
    insurance_ = AddFact(*facts, "Insurance");
    policy_ = AddFact(*facts, "Policy");
    balance_ = AddFact(*facts, "Balance");
    card->Content().addLayout(facts);
    card->Content().addStretch();
    auto* buttons = new QGridLayout;
    buttons->setSpacing(kGap);
    buttons->addWidget(checkIn_, 0, 0);
    buttons->addWidget(pay_, 0, 1);
    buttons->addWidget(cancel_, 1, 0);
    buttons->addWidget(writeOff_, 1, 1);
    card->Content().addLayout(buttons);
    return card;
}

QLabel* AccountScreen::AddFact(QFormLayout& facts, const QString& name) {
    auto* value = new QLabel;
    value->setTextFormat(Qt::PlainText);
    value->setWordWrap(true);
    facts.addRow(MakeNote(name), value);
    return value;
}

Card* AccountScreen::MakeReminders() {
    auto* card = new Card("Reminders");
    card->Content().addWidget(reminders_, 1);
    return card;
}

Card* AccountScreen::MakeVisits() {
    auto* card = new Card("Visits");
    card->Content().addWidget(visits_, 1);
    return card;
}

Card* AccountScreen::MakePayments() {
    auto* card = new Card("Payments");
    card->Content().addWidget(payments_, 1);
    return card;
}

QWidget* AccountScreen::FirstField() {
    if (checkIn_->isEnabled()) return checkIn_;
    return pay_->isEnabled() ? static_cast<QWidget*>(pay_) : visits_;
}

void AccountScreen::Refresh() {
    const auto& patient = TheDesk().Current();
    EnableButtons();
    if (!patient) return;
    phone_->setText(patient->phone);
    address_->setText(patient->address);
    insurance_->setText(
        TheDesk().Server().Description("INS", patient->insurance).value_or(patient->insurance));
    policy_->setText(patient->policy);
    balance_->setText(Money(patient->balance));
    ShowReminders();
    ShowVisits();
    ShowPayments();
}

void AccountScreen::EnableButtons() {
    const bool hasVisit = TheDesk().VisitOfToday().has_value();
    const bool isDue = hasVisit && TheDesk().VisitOfToday()->state < VisitState::CheckedIn;
    const bool isOpen = TheDesk().Current().has_value();
    checkIn_->setEnabled(isDue && TheDesk().May("SCHEDULE", Right::Modify));
    pay_->setEnabled(isOpen && TheDesk().May("PAYMENTS", Right::Add));
    cancel_->setEnabled(isDue && TheDesk().May("SCHEDULE", Right::Delete));
    const bool mayWriteOff = TheDesk().May("WRITEOFFS", Right::Add);
    writeOff_->setEnabled(isOpen && mayWriteOff);
    writeOff_->setToolTip(mayWriteOff ? "" : "Your rights do not include write-offs");
}

void AccountScreen::ShowReminders() {
    const halvek::ReminderDefinition reminder = TheDesk().RemindersOfAccount();
    reminders_->Show(reminder);
    const int number = TheDesk().Current()->number;
    if (isVisible() && reminder.SoundAlert() && alerted_ != number) QApplication::beep();
    if (isVisible()) alerted_ = number;
}

void AccountScreen::ShowVisits() {
    visits_->setRowCount(0);
    for (const Visit& visit : TheDesk().Server().VisitsOf(TheDesk().Current()->number)) {
        AddRow(*visits_, {DayText(visit.day), TimeText(visit.time), visit.provider,
                          visit.procedures, StateName(visit.state)});
    }
}

void AccountScreen::ShowPayments() {
    payments_->setRowCount(0);
    for (const Payment& payment : TheDesk().Server().Payments(TheDesk().Current()->number)) {
        AddRow(*payments_,
               {DayText(payment.posted.date()), Money(payment.amount),
                payment.adjustment == 0 ? "" : Money(payment.adjustment), payment.method});
    }
}

void AccountScreen::CancelVisit() {
    const auto visit = TheDesk().VisitOfToday();
    if (!visit) return;
    const QString question = QString("Cancel the visit of %1 at %2?\r\n\r\nThis cannot be undone.")
                                 .arg(visit->patientName, TimeText(visit->time));
    if (TheDesk().Ask(question, halvek::mbYesNo, halvek::mbTrash, kTitle) != halvek::mbYes) return;
    TheDesk().Server().CancelVisit(visit->id);
    TheDesk().NotePracticeChanged();
}

void AccountScreen::WriteOff() {
    const Patient& patient = *TheDesk().Current();
    const QString question = "Write off " + Money(patient.balance) + '?';
    if (TheDesk().Ask(question, halvek::mbYesNo, halvek::mbExclamation, kTitle) != halvek::mbYes)
        return;
    TheDesk().Server().Post({0, patient.number, {}, 0, -patient.balance, "Write-off", ""});
    TheDesk().NotePracticeChanged();
}

}  // namespace frontdesk
