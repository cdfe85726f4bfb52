// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/StringArray.h>

#include <QWidget>

namespace frontdesk {

/// The colours of a palette in their order, only to see; an unused slot is crossed out.
class ColorStrip : public QWidget {
  public:
    ColorStrip();

    void SetColors(const halvek::StringArray& colors);

    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    halvek::StringArray colors_;
};

}  // namespace frontdesk
