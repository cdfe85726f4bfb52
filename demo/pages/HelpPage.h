// SPDX-License-Identifier: MIT
#pragma once

#include "Desk.h"
#include "Page.h"
#include "widgets/LoggedPane.h"

#include <QComboBox>
#include <QSpinBox>
#include <QTemporaryDir>

namespace frontdesk {

/// Opens the client's help, and missing or damaged files, by number and by topic.
class HelpPage : public Page {
  public:
    explicit HelpPage(Desk& desk);

    void Play(Tour& tour) override;

  private:
    void AddFiles();
    void ShowByNumber();
    void ShowByTopic();
    void PlayViewer(Tour& tour);
    void PlayFaults(Tour& tour);

    Desk& desk_;
    QTemporaryDir damaged_;
    QComboBox file_;
    QSpinBox* number_;
    QComboBox topic_;
    LoggedPane* logged_ = new LoggedPane;
};

}  // namespace frontdesk
