// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

namespace frontdesk {

/// One line of plain text of less weight, cut with an ellipsis where there is no room; the tool tip
/// then says all.
class QuietLabel : public QLabel {
  public:
    explicit QuietLabel(const QString& text = {});

    /// In the colour of warnings instead.
    void Warn(bool warn);

    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    bool warns_ = false;
};

}  // namespace frontdesk
