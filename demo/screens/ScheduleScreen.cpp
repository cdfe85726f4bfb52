// SPDX-License-Identifier: MIT
#include "Texts.h"
#include "screens/ScheduleView.h"
#include "screens/Screen.h"
#include "widgets/Buttons.h"
#include "widgets/Card.h"

#include <QHBoxLayout>
#include <QItemSelectionModel>
#include <QLabel>
#include <QToolButton>

namespace frontdesk {

namespace {

/// The next day from Monday to Friday, in steps of 1 or -1.
QDate WorkingDay(QDate day, int step) {
    do {
        day = day.addDays(step);
    } while (day.dayOfWeek() > Qt::Friday);
    return day;
}

/// The visits of a day, in the colours of their reasons; who is due has a mark.
class ScheduleScreen : public Screen {
  public:
    explicit ScheduleScreen(Desk& desk);

    void Refresh() override;
    QWidget* FirstField() override { return view_; }
    int HelpContext() const override { return 100; }

  private:
    QLayout* MakeHeading();
    void ShowDay(const QDate& day);
    void ChooseDay();

    ScheduleView* view_;
    QDate shown_;
    QLabel* day_;
    QToolButton* choose_;
    QLabel* legend_;
};

ScheduleScreen::ScheduleScreen(Desk& desk)
    : Screen(desk),
      view_(new ScheduleView(desk.Server())),
      day_(new QLabel),
      choose_(MakeToolButton("Choose a day", Qt::CTRL | Qt::Key_D)),
      legend_(MakeNote()) {
    column_->addLayout(MakeHeading());
    column_->addWidget(new Card({}, view_), 1);
    connect(view_, &ScheduleView::SearchStarted, &desk, &Desk::SearchStarted);
    connect(view_, &ScheduleView::Chosen, this,
            [this](const Visit& visit) { desk_.OpenAccount(visit.patient, ScreenId::Account); });
    connect(view_->selectionModel(), &QItemSelectionModel::currentChanged, &desk, [this, &desk] {
        if (view_->CurrentVisit().id != 0) desk.Select(view_->CurrentVisit().patient);
    });
    connect(&desk, &Desk::PracticeChanged, this, [this] { ShowDay(shown_); });
    connect(&desk, &Desk::PrefsChanged, this, [this] { ShowDay(shown_); });
    ShowDay(desk.Server().Now().date());
}

QLayout* ScheduleScreen::MakeHeading() {
    Emphasize(*day_, 1.35);
    auto* before = MakeToolButton("The day before", Qt::ALT | Qt::Key_Left);
    before->setArrowType(Qt::LeftArrow);
    auto* after = MakeToolButton("The day after", Qt::ALT | Qt::Key_Right);
    after->setArrowType(Qt::RightArrow);
    choose_->setIcon(MakeIcon("calendar"));
    legend_->setTextFormat(Qt::RichText);
    legend_->setWordWrap(false);
    legend_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    legend_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    connect(before, &QToolButton::clicked, this, [this] { ShowDay(WorkingDay(shown_, -1)); });
    connect(after, &QToolButton::clicked, this, [this] { ShowDay(WorkingDay(shown_, 1)); });
    connect(choose_, &QToolButton::clicked, this, &ScheduleScreen::ChooseDay);
    auto* row = new QHBoxLayout;
    row->setSpacing(4);
    row->addWidget(before);
    row->addWidget(after);
    row->addWidget(choose_);
    row->addSpacing(kGap);
    row->addWidget(day_);
    row->addSpacing(kMargin);
    row->addWidget(legend_, 1);
    return row;
}

void ScheduleScreen::Refresh() {
    if (desk_.Current()) view_->GoToPatient(desk_.Current()->number);
}

void ScheduleScreen::ShowDay(const QDate& day) {
    shown_ = day;
    day_->setText(Us().toString(day, "dddd, MMMM d, yyyy"));
    QStringList colors;
    for (const Reason& reason : desk_.Server().Reasons()) {
        colors << QString("<font color=\"%1\">&#9632;</font>&nbsp;%2")
                      .arg(ToQColor(reason.color).name(), reason.description.toHtmlEscaped());
    }
    legend_->setText(colors.join(" &nbsp; "));
    view_->ShowDay(day, desk_.Prefs().ScheduleFormData().empty());
    Refresh();
}

void ScheduleScreen::ChooseDay() {
    const QDate day = DayFrom(desk_.ChooseDay(choose_, DayText(shown_)));
    if (day.isValid()) ShowDay(day);
}

}  // namespace

Screen* MakeScheduleScreen(Desk& desk) {
    return new ScheduleScreen(desk);
}

}  // namespace frontdesk
