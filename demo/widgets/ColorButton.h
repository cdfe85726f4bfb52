// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Color.h>

#include <QColor>
#include <QPushButton>

namespace frontdesk {

/// A colour of the library as Qt draws it; a colour of the desktop's scheme becomes its button
/// face.
QColor ToQColor(halvek::Color color);

/// A colour to see and to change: a swatch with the decimal value beside it.
class ColorButton : public QPushButton {
  public:
    ColorButton();

    halvek::Color Value() const { return value_; }
    void SetValue(halvek::Color value);

  private:
    void Choose();

    halvek::Color value_ = 0;
};

}  // namespace frontdesk
