// SPDX-License-Identifier: MIT
#pragma once

#include "Desk.h"

#include <QMenu>

namespace frontdesk {

/// The windows of the library's registry; choosing one brings it forward.
class WindowsMenu : public QMenu {
  public:
    explicit WindowsMenu(Desk& desk);

    /// Lists the windows as they are now; happens whenever the menu opens.
    void Fill();

  private:
    Desk& desk_;
};

}  // namespace frontdesk
