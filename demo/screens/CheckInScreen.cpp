// SPDX-License-Identifier: MIT
#include "screens/CheckInScreen.h"

#include "Texts.h"
#include "widgets/Buttons.h"
#include "widgets/Columns.h"
#include "widgets/FieldForm.h"

#include <halvekutils/qt/QtText.h>

#include <QHBoxLayout>
#include <QStringList>

namespace frontdesk {

namespace {

constexpr int kMostProcedures = 12;
constexpr int kDaysToNextVisit = 14;
constexpr char kTitle[] = "Check-in";
constexpr QChar kBetweenFields('^');  // of a draft

}  // namespace

CheckInScreen::CheckInScreen(Desk& desk)
    : Screen(desk),
      insurance_(new CodesField(desk, "INS", "Insurance", 1)),
      provider_(new CodesField(desk, "PRV", "Provider", 1)),
      procedures_(new CodesField(desk, "PRC", "Procedures", kMostProcedures)),
      next_(new DateField(desk, "Next visit")),
      reminders_(new ReminderTabs),
      visit_(MakeNote()),
      copay_(MakeNote()),
      checkInAndPost_(new PrimaryButton("Check &in and post")),
      checkIn_(MakeButton("Check in &only")) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    column->addWidget(new Columns(MakeForm(), 3, MakeReminders(), 2));
    column->addStretch();
    checkInAndPost_->setObjectName("checkInAndPost");
    checkInAndPost_->setShortcut(Qt::CTRL | Qt::Key_Return);
    checkInAndPost_->setToolTip("Ctrl+Enter");
    connect(checkInAndPost_, &QPushButton::clicked, this, [this] {
        if (CheckIn()) emit PostNow();
    });
    connect(checkIn_, &QPushButton::clicked, this, [this] {
        if (CheckIn()) emit TheDesk().GoTo(ScreenId::Schedule);
    });
    connect(insurance_, &CodesField::Changed, this, [this] { ShowCopay(); });
}

Card* CheckInScreen::MakeForm() {
    auto* card = new Card("Check-in");
    card->Content().addWidget(visit_);
    auto* form = new FieldForm(TheDesk());
    form->AddRow("In&surance", insurance_);
    form->AddRow("&Provider", provider_);
    form->AddRow("Proced&ures", procedures_);
    form->AddRow("Ne&xt visit", next_);
    card->Content().addWidget(form);
    card->Content().addWidget(copay_);
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(kGap);
    buttons->addWidget(checkInAndPost_);
    buttons->addWidget(checkIn_);
    buttons->addStretch();
    card->Content().addLayout(buttons);
    return card;
}

Card* CheckInScreen::MakeReminders() {
    auto* card = new Card("Reminders");
    card->Content().addWidget(reminders_, 1);
    return card;
}

QWidget* CheckInScreen::FirstField() {
    if (!insurance_->isEnabled()) return this;
    return insurance_->Line();
}

void CheckInScreen::Refresh() {
    KeepDraft();
    if (TheDesk().Current()) reminders_->Show(TheDesk().RemindersOfAccount());
    const auto visit = TheDesk().VisitOfToday();
    const bool isDue = visit && visit->state < VisitState::CheckedIn;
    const std::initializer_list<QWidget*> parts = {insurance_, provider_,       procedures_,
                                                   next_,      checkInAndPost_, checkIn_};
    for (QWidget* part : parts) part->setEnabled(isDue && TheDesk().May("SCHEDULE", Right::Modify));
    if (isDue) return Fill(*visit);
    visitShown_ = 0;
    for (CodesField* field : {insurance_, provider_, procedures_}) field->SetCodes({});
    next_->SetText({});
    visit_->setText(visit ? "The visit of today is checked in."
                          : "No visit is to be checked in today.");
    copay_->clear();
}

void CheckInScreen::Fill(const Visit& visit) {
    if (visitShown_ == visit.id) return;
    visitShown_ = visit.id;
    QString reasonText = visit.reason;
    QString procedure;
    for (const Reason& reason : TheDesk().Server().Reasons()) {
        if (reason.code != visit.reason) continue;
        reasonText = reason.description;
        procedure = reason.procedure;
    }
    visit_->setText(QString("Today at %1: %2").arg(TimeText(visit.time), reasonText));
    const QString draft = halvek::ToQString(TheDesk().Library().GetBinData(DraftKey()));
    const QStringList fields = draft.split(kBetweenFields);
    if (fields.size() == 4) {
        insurance_->SetCodes(fields[0]);
        provider_->SetCodes(fields[1]);
        procedures_->SetCodes(fields[2]);
        next_->SetText(fields[3]);
        return;
    }
    insurance_->SetCodes(TheDesk().Current()->insurance);
    provider_->SetCodes(visit.provider);
    procedures_->SetCodes(procedure);
    next_->SetText(DayText(visit.day.addDays(kDaysToNextVisit)));
    ShowCopay();
}

QString CheckInScreen::DraftKey() const {
    return QString("Check-in %1").arg(visitShown_);
}

// The library's bins keep what was typed while other accounts are worked on.
void CheckInScreen::KeepDraft() {
    if (visitShown_ == 0) return;
    const QString draft =
        QStringList{insurance_->Codes(), provider_->Codes(), procedures_->Codes(), next_->Text()}
            .join(kBetweenFields);
    TheDesk().Library().AddBin(DraftKey(), draft, u"check-in");
    TheDesk().Calls().Add("AddBin", {DraftKey(), draft, QString("check-in")});
}

void CheckInScreen::ShowCopay() {
    const qint64 copay = TheDesk().Server().CopayOf(insurance_->Codes());
    copay_->setText("Copay of this visit: " + Money(copay));
    checkInAndPost_->setText(copay == 0 ? QString("Check &in")
                                        : "Check &in and post " + Money(copay));
    checkInAndPost_->setShortcut(Qt::CTRL | Qt::Key_Return);  // a new text clears it
}

bool CheckInScreen::CheckIn() {
    const auto visit = TheDesk().VisitOfToday();
    if (!visit) return false;
    if (!insurance_->Check() || !provider_->Check() || !procedures_->Check()) return false;
    if (!next_->Text().isEmpty() && next_->Day() <= visit->day) {
        TheDesk().Ask("The next visit must be on a day after today, or left empty.",
                      halvek::mbOkOnly, halvek::mbExclamation, kTitle);
        next_->setFocus();
        return false;
    }
    const Arrival arrival = {visit->id, insurance_->Codes(), provider_->Codes(),
                             procedures_->Codes(), next_->Day()};
    if (!TheDesk().Server().CheckIn(arrival)) return false;
    TheDesk().Library().RemoveBin(DraftKey());
    TheDesk().Calls().Add("RemoveBin", {DraftKey()});
    visitShown_ = 0;
    TheDesk().NotePracticeChanged();
    return true;
}

}  // namespace frontdesk
