// SPDX-License-Identifier: MIT
#pragma once

#include "Desk.h"

#include <QCompleter>
#include <QLineEdit>
#include <QStandardItemModel>

namespace frontdesk {

/// Finds a patient by number or name while the user types; Enter opens the account.
class FindPatient : public QLineEdit {
  public:
    explicit FindPatient(Desk& desk);

    /// Goes on with what was typed elsewhere.
    void StartWith(const QString& text);

    QSize sizeHint() const override;

  private:
    void Offer();
    void Open(const QModelIndex& found);
    void OpenFirst();

    Desk& desk_;
    QStandardItemModel found_;
    QCompleter completer_;
};

}  // namespace frontdesk
