// SPDX-License-Identifier: MIT
#pragma once

#include "Desk.h"
#include "Page.h"
#include "pages/CodesModel.h"

#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTableView>

namespace frontdesk {

/// The codes collection as a table, with a look-up by key.
class CodesPage : public Page {
  public:
    explicit CodesPage(Desk& desk);

    void Refresh() override;
    void Play(Tour& tour) override;

  private:
    void MakeTable();
    QLayout* MakeLookUp();
    QLayout* MakeStatus();

    void Build();
    void Clear();
    /// Returns the result of the look-up for the list of calls.
    QString LookUp();
    QString Fetch(const QString& key);

    Desk& desk_;
    CodesModel model_;
    QTableView table_;
    QLineEdit key_;
    QLineEdit found_;
    QLabel count_;
    QPlainTextEdit* logged_;
};

}  // namespace frontdesk
