// SPDX-License-Identifier: MIT
#pragma once

#include <QPushButton>

namespace halvek {

/// A push button that paints with the very palette of an earlier one of the same colours. Styles
/// keep pictures of buttons by the palette's identity, which is new whenever a widget is given
/// colours; so each dialog would have its coloured buttons painted anew.
class PushButton : public QPushButton {
  public:
    PushButton(const QString& caption, QWidget* parent);
    ~PushButton() override;

  protected:
    void initStyleOption(QStyleOptionButton* option) const override;
};

}  // namespace halvek
