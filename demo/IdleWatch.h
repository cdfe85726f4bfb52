// SPDX-License-Identifier: MIT
#pragma once

#include "Desk.h"

#include <QTimer>

namespace frontdesk {

/// Closes the open accounts when nobody has used the desk for a while, after a box that counts
/// down: patients pass the desk.
class IdleWatch : public QObject {
  public:
    IdleWatch(Desk& desk, int seconds);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void Warn();

    Desk& desk_;
    QTimer timer_;
};

}  // namespace frontdesk
