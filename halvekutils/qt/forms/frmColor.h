// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/dialogs/ColorPalette.h>
#include <halvekutils/qt/forms/DialogForm.h>

#include <memory>

class QLabel;

namespace halvek {

class PaletteView;

/// The window of a colour palette.
class frmColor : public DialogForm {
    Q_OBJECT

  public:
    /// `desktop` knows the screens.
    frmColor(const std::shared_ptr<ColorPalette>& rules, const Desktop& desktop);

  protected:
    void Refresh() override;
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;

  private:
    const ColorPalette& rules_;
    PaletteView* cells_;
    QLabel* name_;
};

}  // namespace halvek
