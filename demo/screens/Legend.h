// SPDX-License-Identifier: MIT
#pragma once

#include "screens/ScheduleModel.h"

#include <QWidget>

namespace frontdesk {

/// What the schedule's colours mean, as far as there is room.
class Legend : public QWidget {
  public:
    explicit Legend(const ScheduleModel& model);

    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    const ScheduleModel& model_;
};

}  // namespace frontdesk
