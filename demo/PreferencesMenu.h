// SPDX-License-Identifier: MIT
#pragma once

#include "Desk.h"

#include <QMenu>

#include <functional>

namespace frontdesk {

/// The user's colours, the schedule's colours, and what the schedule shows. Each is stored on the
/// server at once.
class PreferencesMenu : public QMenu {
  public:
    explicit PreferencesMenu(Desk& desk);

  private:
    void Fill();
    void AddColor(const QString& name, halvek::Color color,
                  const std::function<void(halvek::Color color)>& store);

    Desk& desk_;
};

}  // namespace frontdesk
