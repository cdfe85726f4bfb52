// SPDX-License-Identifier: MIT
#include "widgets/DateField.h"

#include "Texts.h"
#include "widgets/Icons.h"

#include <halvekutils/qt/QtText.h>

#include <QHBoxLayout>
#include <QKeyEvent>

namespace frontdesk {

namespace {

constexpr int kLetters = 18;

}  // namespace

DateField::DateField(Desk& desk, const QString& name)
    : desk_(desk), line_(new QLineEdit), button_(new QToolButton) {
    line_->setAccessibleName(name);
    line_->setPlaceholderText("mm/dd/yyyy");
    line_->setFixedWidth(line_->fontMetrics().averageCharWidth() * kLetters);
    line_->installEventFilter(this);
    button_->setIcon(MakeIcon(Glyph::Calendar));
    button_->setFocusPolicy(Qt::StrongFocus);
    button_->setAccessibleName("Calendar: " + name);
    button_->setToolTip("Choose from the calendar (F2)");
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(4);
    row->addWidget(line_);
    row->addWidget(button_);
    row->addStretch();
    setFocusProxy(line_);
    connect(button_, &QToolButton::clicked, this, [this] { Choose(); });
}

QDate DateField::Day() const {
    const auto day = halvek::ParseDateTime(Text(), desk_.Library().ServerTime());
    return day ? DayFrom(halvek::ToQString(halvek::DateOnlyText(*day))) : QDate();
}

void DateField::Choose() {
    const QString day = desk_.ChooseDay(button_, Text());
    if (!day.isEmpty()) SetText(day);
    line_->setFocus();
}

bool DateField::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress &&
        !desk_.SearchBy(static_cast<QKeyEvent*>(event)->key()).isEmpty()) {
        Choose();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

}  // namespace frontdesk
