// SPDX-License-Identifier: MIT
#pragma once

#include "Desk.h"
#include "Page.h"
#include "widgets/LoggedPane.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>

namespace frontdesk {

/// The signed-in user's rights as a table, with a look-up by key and full access to switch on.
class RightsPage : public Page {
  public:
    explicit RightsPage(Desk& desk);

    void Refresh() override;
    void Play(Tour& tour) override;

  private:
    QLayout* MakeLookUp();
    QLayout* MakeStatus();

    void Build(bool fullAccess);
    void Clear();
    void LookUp();
    void ReportMissing(bool report);
    /// Enters the key, looks it up and returns the answer.
    QString Answer(const QString& key);

    Desk& desk_;
    QTableWidget* table_;
    QLineEdit key_;
    QLineEdit* found_;
    QCheckBox reportMissing_;
    QLabel count_;
    QPushButton* fullAccess_;
    LoggedPane* logged_ = new LoggedPane;
};

}  // namespace frontdesk
