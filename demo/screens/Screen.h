// SPDX-License-Identifier: MIT
#pragma once

#include "Desk.h"

#include <QWidget>

namespace frontdesk {

/// A screen of the client.
class Screen : public QWidget {
  public:
    explicit Screen(Desk& desk) : desk_(desk) {}

    /// Shows the current patient.
    virtual void Refresh() = 0;
    /// Where the keyboard goes when the screen opens.
    virtual QWidget* FirstField() = 0;
    /// The number of its page in the help file.
    virtual int HelpContext() const = 0;

  protected:
    Desk& TheDesk() { return desk_; }

  private:
    Desk& desk_;
};

}  // namespace frontdesk
