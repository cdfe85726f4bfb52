// SPDX-License-Identifier: MIT
#pragma once

#include "Desk.h"
#include "Page.h"

#include <QLineEdit>
#include <QStringList>
#include <QTableWidget>

namespace frontdesk {

/// Texts stored under keys, with what the library returns for every key that was used here.
class DataBinsPage : public Page {
  public:
    explicit DataBinsPage(Desk& desk);

    void Refresh() override;
    void Play(Tour& tour) override;

  private:
    QLayout* MakeFields();
    QLayout* MakeButtons();
    void MakeTable();

    void AddBin();
    void GetBinData();
    void BinExists();
    void RemoveBin();
    void ClearAllBins();
    void Note(const QString& function, const QStringList& arguments, const QString& result = {});

    Desk& desk_;
    QLineEdit key_;
    QLineEdit data_;
    QLineEdit type_;
    QStringList usedKeys_;
    QTableWidget table_;
};

}  // namespace frontdesk
