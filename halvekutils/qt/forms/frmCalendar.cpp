// SPDX-License-Identifier: MIT
#include <halvekutils/qt/forms/MonthView.h>
#include <halvekutils/qt/forms/frmCalendar.h>
#include <halvekutils/qt/helpers/Design.h>
#include <halvekutils/qt/helpers/EventGuard.h>
#include <halvekutils/qt/helpers/Metrics.h>

#include <QCursor>
#include <QMouseEvent>
#include <QPushButton>
#include <QVBoxLayout>

namespace halvek {

frmCalendar::frmCalendar(const std::shared_ptr<Calendar>& rules, const Desktop& desktop)
    : DialogForm(rules, u"frmCalendar"),
      month_(new MonthView(*rules, this)),
      todayButton_(design::NewButton("cmdToday", tr("Today"), this)),
      closeButton_(design::NewButton("Command1", tr("Close Calendar"), this)) {
    setAccessibleName(tr("Calendar"));
    // No title; an empty one would become the application's name.
    setWindowTitle(QStringLiteral(" "));
    for (QPushButton* const button : {todayButton_, closeButton_}) {
        button->setFont(ToQFont({u"Tahoma", 0}));
    }
    design::MakeAlike({todayButton_, closeButton_});
    // The focus stays on the days, where the key T does the same.
    todayButton_->setFocusPolicy(Qt::NoFocus);
    todayButton_->setToolTip(tr("Today (T)"));
    connect(todayButton_, &QPushButton::clicked, this, [&calendar = *rules] {
        GuardEvent(u"frmCalendar.cmdToday_Click", [&] { calendar.KeyDown(Calendar::Key::Today); });
    });
    connect(closeButton_, &QPushButton::clicked, this, [&calendar = *rules] {
        GuardEvent(u"frmCalendar.Command1_Click", [&] { calendar.Close(); });
    });
    for (QWidget* const part : findChildren<QWidget*>()) {
        part->setMouseTracking(true);
        part->installEventFilter(this);
    }
    OpenAt(rules->Anchor(), LayOut(desktop), desktop);
}

/// Returns the size with the frame.
Size frmCalendar::LayOut(const Desktop& desktop) {
    auto* const column = new QVBoxLayout(this);
    design::SpaceOut(*column);
    column->addWidget(month_);
    auto* const buttons = new QHBoxLayout;
    buttons->setSpacing(design::Gap());
    buttons->addWidget(todayButton_);
    buttons->addStretch();
    buttons->addWidget(closeButton_);
    column->addLayout(buttons);
    setFixedSize(sizeHint());
    const Size frame = desktop.FrameSize();
    return {PixelsToTwips(width()) + frame.width, PixelsToTwips(height()) + frame.height};
}

void frmCalendar::Refresh() {
    month_->Refresh();
}

bool frmCalendar::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseMove) {
        const QPoint at = static_cast<QMouseEvent*>(event)->globalPosition().toPoint();
        // A calendar that opens under a resting pointer keeps the focus on its days.
        if (at != pointerRestsAt_) {
            pointerRestsAt_.reset();
            FollowPointer(*static_cast<QWidget*>(watched));
        }
    }
    return DialogForm::eventFilter(watched, event);
}

void frmCalendar::FollowPointer(const QWidget& over) {
    if (&over == closeButton_) {
        closeButton_->setFocus(Qt::MouseFocusReason);
    } else {
        month_->TakeFocus();
    }
}

void frmCalendar::showEvent(QShowEvent* event) {
    DialogForm::showEvent(event);
    pointerRestsAt_ = QCursor::pos();
    month_->setFocus(Qt::OtherFocusReason);
}

}  // namespace halvek
