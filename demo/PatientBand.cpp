// SPDX-License-Identifier: MIT
#include "PatientBand.h"

#include "Texts.h"
#include "widgets/Card.h"

#include <QHBoxLayout>

namespace frontdesk {

QWidget* MakePatientBand(Desk& desk) {
    constexpr int kPadding = 9;
    constexpr qreal kLarge = 1.3;
    auto* band = new QWidget;
    auto* name = new QLabel;
    auto* details = new QLabel;
    auto* balance = new QLabel;
    auto* alert = new QLabel("!");
    auto* row = new QHBoxLayout(band);
    row->setContentsMargins(kMargin, kPadding, kMargin, kPadding);
    row->setSpacing(kMargin);
    for (QLabel* label : {name, details, balance, alert}) {
        label->setTextFormat(Qt::PlainText);
        if (label != details) Emphasize(*label, kLarge);
        row->addWidget(label);
    }
    row->setStretchFactor(details, 1);
    for (QLabel* label : {name, details}) label->setMinimumWidth(1);  // a narrow window cuts them
    const int side = alert->sizeHint().height();
    alert->setFixedSize(side, side);
    alert->setAlignment(Qt::AlignCenter);
    alert->setAccessibleName("Alert");
    alert->setStyleSheet(
        QString("background: #F6B73C; color: black; border-radius: %1px").arg(side / 2));
    const auto show = [=, &desk] {
        const Patient patient = desk.Current().value_or(Patient{});
        const bool isChosen = desk.Current().has_value();
        const QString born = DayText(patient.born);
        const QString due = patient.balance > 0 ? Money(patient.balance) + " due" : "nothing due";
        name->setText(isChosen ? patient.Name() : "No patient chosen");
        details->setText(QString("#%1    born %2").arg(patient.number).arg(born));
        balance->setText(due);
        details->setVisible(isChosen);
        balance->setVisible(isChosen);
        alert->setVisible(patient.hasAlert);
        SetColors(*band, desk.Library().FormTopColor(), desk.Library().FormTextColor());
    };
    QObject::connect(&desk, &Desk::PatientChanged, band, show);
    QObject::connect(&desk, &Desk::PrefsChanged, band, show);
    band->setAutoFillBackground(true);
    band->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    show();
    return band;
}

}  // namespace frontdesk
