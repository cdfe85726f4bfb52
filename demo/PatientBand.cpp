// SPDX-License-Identifier: MIT
#include "PatientBand.h"

#include "Texts.h"
#include "widgets/Card.h"
#include "widgets/RequiredColor.h"

#include <QAccessible>
#include <QPainter>

namespace frontdesk {

namespace {

constexpr int kPadding = 9;
constexpr qreal kNameScale = 1.3;

int AgeOn(const QDate& day, const QDate& born) {
    const bool hadBirthday = day.month() * 100 + day.day() >= born.month() * 100 + born.day();
    return day.year() - born.year() - (hadBirthday ? 0 : 1);
}

}  // namespace

PatientBand::PatientBand(Desk& desk) : desk_(desk) {
    setObjectName("patient");
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    connect(&desk_, &Desk::PatientChanged, this, [this] { Refresh(); });
    connect(&desk_, &Desk::PrefsChanged, this, [this] { update(); });
    Refresh();
}

void PatientBand::Refresh() {
    const auto& patient = desk_.Current();
    name_ = patient ? patient->Name() : "No patient chosen";
    details_.clear();
    balance_.clear();
    hasAlert_ = patient && patient->hasAlert;
    if (patient) {
        details_ = QString("#%1    born %2 (%3)")
                       .arg(patient->number)
                       .arg(DayText(patient->born))
                       .arg(AgeOn(desk_.Server().Now().date(), patient->born));
        balance_ = patient->balance > 0 ? Money(patient->balance) + " due" : "nothing due";
    }
    setAccessibleName(name_ + ' ' + details_ + ' ' + balance_ + (hasAlert_ ? " alert" : ""));
    update();
}

QFont PatientBand::NameFont() const {
    QFont font = this->font();
    font.setPointSizeF(font.pointSizeF() * kNameScale);
    font.setWeight(QFont::DemiBold);
    return font;
}

QSize PatientBand::sizeHint() const {
    return {fontMetrics().averageCharWidth() * 60,
            QFontMetrics(NameFont()).height() + 2 * kPadding};
}

QSize PatientBand::minimumSizeHint() const {
    return {0, sizeHint().height()};
}

void PatientBand::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), ToQColor(desk_.Library().FormTopColor()));
    const QColor text = ToQColor(desk_.Library().FormTextColor());
    painter.setPen(text);
    QRect left = rect().adjusted(kMargin, 0, -kMargin, 0);

    painter.setFont(NameFont());
    if (hasAlert_) {
        QFont mark = NameFont();
        const int side = painter.fontMetrics().height();
        const QRect disc(left.right() - side + 1, (height() - side) / 2, side, side);
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(0xF6B73C));
        painter.drawEllipse(disc);
        painter.setPen(Qt::black);
        painter.drawText(disc, Qt::AlignCenter, "!");
        painter.setPen(text);
        left.setRight(disc.left() - kGap);
    }
    const int balanceWidth = painter.fontMetrics().horizontalAdvance(balance_);
    painter.drawText(left, Qt::AlignVCenter | Qt::AlignRight, balance_);
    left.setRight(left.right() - balanceWidth - kMargin);

    const int nameWidth = qMin(painter.fontMetrics().horizontalAdvance(name_), left.width());
    painter.drawText(left, Qt::AlignVCenter,
                     painter.fontMetrics().elidedText(name_, Qt::ElideRight, nameWidth + 1));
    left.setLeft(left.left() + nameWidth + kMargin);
    painter.setFont(font());
    painter.drawText(left, Qt::AlignVCenter,
                     painter.fontMetrics().elidedText(details_, Qt::ElideRight, left.width()));
}

}  // namespace frontdesk
