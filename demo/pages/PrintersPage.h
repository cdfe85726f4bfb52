// SPDX-License-Identifier: MIT
#pragma once

#include "Desk.h"
#include "Page.h"
#include "widgets/LoggedPane.h"

#include <halvekutils/refdata/PrintersCollection.h>

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QTableWidget>

#include <cstddef>
#include <initializer_list>
#include <memory>

namespace frontdesk {

/// The server's and the workstation's printers as a table, whole or filtered.
class PrintersPage : public Page {
  public:
    explicit PrintersPage(Desk& desk);

    void Refresh() override;
    void Play(Tour& tour) override;

  private:
    QLayout* MakeStatus();
    QGroupBox* MakeFilter();

    void Build();
    void Clear();
    std::shared_ptr<halvek::PrintersCollection> Listed();
    void NoteFilter();
    /// Sets the switches in their order and returns the descriptions that remain.
    QString FilteredWith(std::initializer_list<bool> exclude);

    static constexpr std::size_t kSwitches = 4;

    Desk& desk_;
    QTableWidget* table_;
    QCheckBox switches_[kSwitches];
    QGroupBox* filter_;
    QComboBox source_;
    QLabel count_;
    LoggedPane* logged_ = new LoggedPane;
};

}  // namespace frontdesk
