// SPDX-License-Identifier: MIT
#pragma once

#include <QPushButton>

namespace frontdesk {

/// The one button of a screen that goes on with the visit.
class PrimaryButton : public QPushButton {
  public:
    explicit PrimaryButton(const QString& text);

    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace frontdesk
