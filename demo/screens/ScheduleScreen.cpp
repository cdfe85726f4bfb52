// SPDX-License-Identifier: MIT
#include "screens/ScheduleScreen.h"

#include "Texts.h"
#include "screens/Legend.h"
#include "widgets/Buttons.h"
#include "widgets/Card.h"
#include "widgets/Icons.h"

#include <QHBoxLayout>
#include <QItemSelectionModel>

namespace frontdesk {

namespace {

constexpr qreal kDayScale = 1.35;

QToolButton* MakeStep(Qt::ArrowType arrow, const QString& name, const QKeySequence& keys) {
    auto* button = new QToolButton;
    button->setArrowType(arrow);
    button->setAccessibleName(name);
    button->setShortcut(keys);
    button->setToolTip(QString("%1 (%2)").arg(name, keys.toString(QKeySequence::NativeText)));
    button->setFocusPolicy(Qt::StrongFocus);
    return button;
}

}  // namespace

ScheduleScreen::ScheduleScreen(Desk& desk)
    : Screen(desk),
      model_(desk),
      view_(new ScheduleView(model_)),
      day_(new QLabel),
      choose_(new QToolButton),
      legend_(new Legend(model_)),
      foot_(nullptr),
      visit_(MakeNote()),
      checkIn_(new PrimaryButton("Chec&k in")) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(kMargin, kMargin - 4, kMargin, kMargin - 4);
    column->setSpacing(kGap);
    column->addLayout(MakeHeading());
    auto* card = new Card({});
    card->Content().setContentsMargins(2, 2, 2, 6);
    card->Content().addWidget(view_);
    column->addWidget(card, 1);
    foot_ = MakeFoot();
    column->addWidget(foot_);
    connect(view_, &ScheduleView::SearchStarted, this, &ScheduleScreen::SearchStarted);
    connect(view_, &ScheduleView::Chosen, this, [this](const QModelIndex& cell) {
        if (const Visit* visit = model_.VisitAt(cell)) {
            TheDesk().OpenAccount(visit->patient, ScreenId::Account);
        }
    });
    connect(&desk, &Desk::PracticeChanged, this, [this] { ShowDay(model_.Day()); });
    connect(&desk, &Desk::PrefsChanged, this, [this] { ShowDay(model_.Day()); });
    connect(view_->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& cell) { ShowVisit(cell); });
    ShowDay(desk.Server().Now().date());
}

QLayout* ScheduleScreen::MakeHeading() {
    QFont large = day_->font();
    large.setPointSizeF(large.pointSizeF() * kDayScale);
    large.setWeight(QFont::DemiBold);
    day_->setFont(large);
    auto* before = MakeStep(Qt::LeftArrow, "The day before", Qt::ALT | Qt::Key_Left);
    auto* after = MakeStep(Qt::RightArrow, "The day after", Qt::ALT | Qt::Key_Right);
    choose_->setIcon(MakeIcon(Glyph::Calendar));
    choose_->setAccessibleName("Choose a day");
    choose_->setToolTip("Choose a day (Ctrl+D)");
    choose_->setShortcut(Qt::CTRL | Qt::Key_D);
    choose_->setFocusPolicy(Qt::StrongFocus);
    connect(before, &QToolButton::clicked, this, [this] { ShowDay(WorkingDay(model_.Day(), -1)); });
    connect(after, &QToolButton::clicked, this, [this] { ShowDay(WorkingDay(model_.Day(), 1)); });
    connect(choose_, &QToolButton::clicked, this, [this] { ChooseDay(); });
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

QWidget* ScheduleScreen::MakeFoot() {
    auto* open = MakeButton("&Open account");
    connect(open, &QPushButton::clicked, this,
            [this] { emit view_->Chosen(view_->currentIndex()); });
    connect(checkIn_, &QPushButton::clicked, this, [this] {
        if (const Visit* visit = model_.VisitAt(view_->currentIndex())) {
            TheDesk().OpenAccount(visit->patient, ScreenId::CheckIn);
        }
    });
    auto* foot = new QWidget;
    auto* row = new QHBoxLayout(foot);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(kGap);
    row->addWidget(visit_, 1);
    row->addWidget(open);
    row->addWidget(checkIn_);
    return foot;
}

// Where there is little room, visits matter more: Enter and the tool bar do the same as the
// buttons.
void ScheduleScreen::resizeEvent(QResizeEvent*) {
    constexpr int kFewestLines = 22;
    foot_->setVisible(height() > fontMetrics().height() * kFewestLines);
}

void ScheduleScreen::Refresh() {
    const auto& patient = TheDesk().Current();
    const QModelIndex cell = patient ? model_.CellOf(patient->number) : QModelIndex();
    if (cell.isValid() && cell != view_->currentIndex()) view_->setCurrentIndex(cell);
}

void ScheduleScreen::GoToDue() {
    const Visit* due = model_.FirstIn(VisitState::Due);
    if (due != nullptr) TheDesk().Select(due->patient);
    Refresh();
}

void ScheduleScreen::ShowDay(const QDate& day) {
    model_.ShowDay(day);
    day_->setText(Us().toString(day, "dddd, MMMM d, yyyy"));
    legend_->update();
    ShowVisit({});
    Refresh();
}

void ScheduleScreen::ShowVisit(const QModelIndex& cell) {
    const Visit* visit = model_.VisitAt(cell);
    checkIn_->setEnabled(visit != nullptr && visit->state < VisitState::CheckedIn &&
                         model_.Day() == TheDesk().Server().Now().date() &&
                         TheDesk().May("SCHEDULE", Right::Modify));
    visit_->setText(visit == nullptr ? QString() : cell.data(Qt::AccessibleTextRole).toString());
    if (visit != nullptr) TheDesk().Select(visit->patient);
}

void ScheduleScreen::ChooseDay() {
    const QDate day = DayFrom(TheDesk().ChooseDay(choose_, DayText(model_.Day())));
    if (day.isValid()) ShowDay(day);
}

}  // namespace frontdesk
