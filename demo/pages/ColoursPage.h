// SPDX-License-Identifier: MIT
#pragma once

#include "Desk.h"
#include "Page.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>

namespace frontdesk {

/// The practice's types of visit, coloured through the palette.
class ColoursPage : public Page {
  public:
    explicit ColoursPage(Desk& desk);

    void Play(Tour& tour) override;

  private:
    enum class Opening { BesideButton, BesideCell, Centred };

    QLayout* MakeButtons();
    /// Chooses a colour for the current type. Returns the result.
    QString Choose(Opening opening);
    QString Open(Opening opening);
    void Colour(int row, const QString& chosen);
    void PlayLists(Tour& tour);

    Desk& desk_;
    QTableWidget table_;
    QPushButton* choose_;
    QLineEdit* returned_;
};

}  // namespace frontdesk
