// SPDX-License-Identifier: MIT
#pragma once

#include "ClientWindow.h"
#include "Desk.h"
#include "Page.h"

#include <QLabel>
#include <QTableWidget>

#include <cstddef>

namespace frontdesk {

/// Opens small windows and shows the registry that keeps them.
class OpenWindowsPage : public Page {
  public:
    explicit OpenWindowsPage(Desk& desk);

    void Refresh() override;
    void Play(Tour& tour) override;

  private:
    QLayout* MakeOpeners();
    QLayout* MakeStatus();
    ClientWindow& Open(std::size_t kind);
    /// The window in the chosen row; null when there is none.
    ClientWindow* Chosen() const;
    void BringForward();
    void Close();
    void GetItem();

    Desk& desk_;
    QTableWidget table_;
    QLabel count_;
    int opened_ = 0;
};

}  // namespace frontdesk
