// SPDX-License-Identifier: MIT
#include "Texts.h"
#include "screens/ReminderTabs.h"
#include "screens/Screen.h"
#include "widgets/Buttons.h"
#include "widgets/Card.h"
#include "widgets/Fields.h"

#include <halvekutils/qt/QtText.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStringList>
#include <QTabWidget>

#include <array>

namespace frontdesk {

namespace {

constexpr int kMostProcedures = 12;
constexpr int kDaysToNextVisit = 14;
constexpr char kTitle[] = "Check-in";
constexpr QChar kBetweenFields('^');  // of a draft

/// The patient has arrived: insurance, provider, procedures and the next visit. What was typed for
/// an account stays until the visit is checked in.
class CheckInScreen : public Screen {
  public:
    explicit CheckInScreen(Desk& desk);

    void Refresh() override;
    QWidget* FirstField() override;
    int HelpContext() const override { return 300; }

  private:
    QWidget* MakeForm();
    std::array<QLineEdit*, 4> Fields() const;
    void Fill(const Visit& visit);
    void KeepDraft();
    QString DraftKey() const;
    void ShowCopay();
    void PostCopay();
    QDate NextDay() const;
    bool CheckIn();

    CodesField* insurance_;
    CodesField* provider_;
    CodesField* procedures_;
    LookupField* next_;
    QTabWidget* reminders_;
    QLabel* visit_;
    QLabel* copay_;
    QPushButton* checkInAndPost_;
    QPushButton* checkInOnly_;  // seen while the other one posts
    QWidget* card_;
    int visitShown_ = 0;
};

CheckInScreen::CheckInScreen(Desk& desk)
    : Screen(desk),
      insurance_(new CodesField(desk, "INS", "Insurance", 1)),
      provider_(new CodesField(desk, "PRV", "Provider", 1)),
      procedures_(new CodesField(desk, "PRC", "Procedures", kMostProcedures)),
      next_(new LookupField(desk, "Next visit", "calendar", "Choose from the calendar (F2)")),
      reminders_(new QTabWidget),
      visit_(MakeNote()),
      copay_(MakeNote()),
      checkInAndPost_(MakePrimaryButton("Check in and post")),
      checkInOnly_(MakeButton("Check in &only")),
      card_(MakeForm()) {
    column_->addWidget(new Columns(card_, 3, new Card("Reminders", reminders_), 2));
    column_->addStretch();
    connect(insurance_, &QLineEdit::textChanged, this, &CheckInScreen::ShowCopay);
    connect(next_, &LookupField::LookedUp, this, [this] {
        const QString day = desk_.ChooseDay(next_, next_->text());
        if (!day.isEmpty()) next_->setText(day);
        next_->setFocus();
    });
}

QWidget* CheckInScreen::MakeForm() {
    auto* form = new FieldForm(desk_);
    form->AddRow("In&surance", insurance_, insurance_->Meaning());
    form->AddRow("&Provider", provider_, provider_->Meaning());
    form->AddRow("Proced&ures", procedures_, procedures_->Meaning());
    form->AddRow("Ne&xt visit", next_);
    next_->setPlaceholderText("mm/dd/yyyy");
    connect(checkInAndPost_, &QPushButton::clicked, this, [this] {
        if (CheckIn()) PostCopay();
    });
    connect(checkInOnly_, &QPushButton::clicked, this, [this] {
        if (CheckIn()) emit desk_.GoTo(ScreenId::Schedule);
    });
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(kGap);
    buttons->addWidget(checkInAndPost_);
    buttons->addWidget(checkInOnly_);
    buttons->addStretch();
    auto* card = new Card("Check-in");
    card->Content().addWidget(visit_);
    card->Content().addWidget(form);
    card->Content().addWidget(copay_);
    card->Content().addLayout(buttons);
    card->Content().addStretch();
    return card;
}

std::array<QLineEdit*, 4> CheckInScreen::Fields() const {
    return {insurance_, provider_, procedures_, next_};
}

QWidget* CheckInScreen::FirstField() {
    return card_->isEnabled() ? static_cast<QWidget*>(insurance_) : this;
}

void CheckInScreen::Refresh() {
    KeepDraft();
    if (desk_.Current()) ShowReminders(*reminders_, desk_.RemindersOfAccount());
    const auto visit = desk_.VisitOfToday();
    const bool isDue = visit && visit->state < VisitState::CheckedIn;
    card_->setEnabled(isDue && desk_.Rights("SCHEDULE")->AllowModify());
    if (isDue) return Fill(*visit);
    visitShown_ = 0;
    for (QLineEdit* field : Fields()) field->clear();
    visit_->setText(visit ? "The visit of today is checked in."
                          : "No visit is to be checked in today.");
    copay_->clear();
}

void CheckInScreen::Fill(const Visit& visit) {
    if (visitShown_ == visit.id) return;
    visitShown_ = visit.id;
    const Reason reason = desk_.Server().ReasonOf(visit);
    visit_->setText(QString("Today at %1: %2").arg(TimeText(visit.time), reason.description));
    const QString draft = halvek::ToQString(desk_.Library().GetBinData(DraftKey()));
    QStringList texts = draft.split(kBetweenFields);
    if (draft.isEmpty()) {
        texts = QStringList{desk_.Current()->insurance, visit.provider, reason.procedure,
                            DayText(visit.day.addDays(kDaysToNextVisit))};
    }
    for (QLineEdit* field : Fields()) field->setText(texts.takeFirst());
    ShowCopay();
}

QString CheckInScreen::DraftKey() const {
    return QString("Check-in %1").arg(visitShown_);
}

// The library's bins keep what was typed while other accounts are worked on.
void CheckInScreen::KeepDraft() {
    if (visitShown_ == 0) return;
    QStringList texts;
    for (const QLineEdit* field : Fields()) texts << field->text().remove(kBetweenFields);
    const QString draft = texts.join(kBetweenFields);
    desk_.Library().AddBin(DraftKey(), draft, u"check-in");
    desk_.Calls().Add("AddBin", {DraftKey(), draft, "check-in"});
}

void CheckInScreen::ShowCopay() {
    const qint64 copay = desk_.Server().CopayOf(insurance_->Codes());
    copay_->setText("Copay of this visit: " + Money(copay));
    const bool posts = copay != 0 && desk_.Rights("PAYMENTS")->AllowAdd();
    SetText(*checkInAndPost_, posts ? "Check in and post " + Money(copay) : "Check in");
    checkInOnly_->setVisible(posts);
}

void CheckInScreen::PostCopay() {
    const bool mayPost = desk_.Current() && desk_.Rights("PAYMENTS")->AllowAdd();
    const qint64 copay = mayPost ? desk_.Server().CopayOf(desk_.Current()->insurance) : 0;
    emit desk_.GoTo(copay == 0 ? ScreenId::Schedule : ScreenId::Payment);
    if (copay != 0) emit desk_.PostNow(copay);
}

QDate CheckInScreen::NextDay() const {
    const auto day = halvek::ParseDateTime(next_->text().trimmed(), desk_.Library().ServerTime());
    return day ? DayFrom(halvek::ToQString(halvek::DateOnlyText(*day))) : QDate();
}

bool CheckInScreen::CheckIn() {
    const auto visit = desk_.VisitOfToday();
    if (!visit || !insurance_->Check() || !provider_->Check() || !procedures_->Check())
        return false;
    if (!next_->text().trimmed().isEmpty() && NextDay() <= visit->day) {
        desk_.Ask("The next visit must be on a day after today, or left empty.", halvek::mbOkOnly,
                  halvek::mbExclamation, kTitle);
        next_->setFocus();
        return false;
    }
    const Arrival arrival = {visit->id, insurance_->Codes(), provider_->Codes(),
                             procedures_->Codes(), NextDay()};
    if (!desk_.Server().CheckIn(arrival)) return false;
    desk_.Library().RemoveBin(DraftKey());
    desk_.Calls().Add("RemoveBin", {DraftKey()});
    visitShown_ = 0;
    desk_.NotePracticeChanged();
    return true;
}

}  // namespace

Screen* MakeCheckInScreen(Desk& desk) {
    return new CheckInScreen(desk);
}

}  // namespace frontdesk
