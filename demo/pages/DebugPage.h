// SPDX-License-Identifier: MIT
#pragma once

#include "Desk.h"
#include "Page.h"

#include <QCheckBox>
#include <QLineEdit>

namespace frontdesk {

/// Lines for the debug console, which shows in debug mode only.
class DebugPage : public Page {
  public:
    explicit DebugPage(Desk& desk);

    void Refresh() override;
    void Play(Tour& tour) override;

  private:
    QLayout* MakeLine();
    QLayout* MakeButtons();
    void SwitchDebugMode(bool on);
    void ShowInDebug();
    void ShowAThousand();
    void ClearDebug();
    void PlayBesideADialog(Tour& tour);

    Desk& desk_;
    QCheckBox debugMode_;
    QLineEdit line_;
};

}  // namespace frontdesk
