// SPDX-License-Identifier: MIT
#pragma once

#include "Desk.h"
#include "Page.h"
#include "widgets/CallBox.h"
#include "widgets/DateField.h"

#include <QGroupBox>

namespace frontdesk {

/// Days from the calendar, the server's dates and its clock.
class DatesPage : public Page {
  public:
    explicit DatesPage(Desk& desk);

    void Play(Tour& tour) override;

  private:
    QGroupBox* MakeVisit();
    QString ChooseBirth(DateField& field);
    QString ChooseVisit(DateField& field);
    QString ChooseNextVisit(DateField& field);
    void PlayCalendars(Tour& tour);
    void PlayCorners(Tour& tour);
    void PlayServerDates(Tour& tour);

    Desk& desk_;
    DateField birth_;
    DateField visit_;
    DateField nextVisit_;
    CallBox* convertHDate_;
    CallBox* convertNumberToDate_;
    CallBox* initServerTime_;
    CallBox* serverTime_;
};

}  // namespace frontdesk
