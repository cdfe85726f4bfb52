// SPDX-License-Identifier: MIT
#pragma once

#include "Desk.h"

#include <QWidget>

namespace frontdesk {

/// Who the account on the screen belongs to: name, number, birthday, balance and, when the server
/// asks for an alert, a mark. In the practice's colours.
class PatientBand : public QWidget {
  public:
    explicit PatientBand(Desk& desk);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    void Refresh();
    QFont NameFont() const;

    Desk& desk_;
    QString name_;
    QString details_;
    QString balance_;
    bool hasAlert_ = false;
};

}  // namespace frontdesk
