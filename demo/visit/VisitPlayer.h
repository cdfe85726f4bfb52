// SPDX-License-Identifier: MIT
#pragma once

#include "Desk.h"
#include "FrontDeskWindow.h"

#include <QObject>
#include <QString>

#include <cstddef>
#include <functional>
#include <vector>

namespace frontdesk {

/// Plays one visit without a person, from the schedule to the payment, and leaves a picture of each
/// step in a folder, with what was posted and the calls of the library.
class VisitPlayer : public QObject {
  public:
    VisitPlayer(Desk& desk, FrontDeskWindow& window, const QString& folder);

    /// Returns the exit code: 0 when the visit was checked in and paid.
    int Play();

  private:
    struct Step {
        bool inDialog;    ///< where the step acts; it waits for this
        QString picture;  ///< taken before the step; empty for none
        std::function<void()> act;
    };

    void PlayNext();
    void TakePicture(const QString& name);
    bool WriteResults();

    Desk& desk_;
    FrontDeskWindow& window_;
    QString folder_;
    std::vector<Step> steps_;
    std::size_t next_ = 0;
    int pictures_ = 0;
    int tries_ = 0;
    bool wasReady_ = false;
};

}  // namespace frontdesk
