// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/dialogs/ColorPalette.h>
#include <halvekutils/platform/Desktop.h>
#include <halvekutils/qt/forms/DialogShow.h>

#include <QDialog>

#include <memory>

namespace halvek {

class PaletteView;

/// The window of a colour palette: draws its rules and forwards its events.
class frmColor : public QDialog {
    Q_OBJECT

  public:
    /// `desktop` knows the screens.
    frmColor(std::shared_ptr<ColorPalette> rules, const Desktop& desktop);
    ~frmColor() override;

    /// Shows the palette until it has ended.
    void ShowModal();

  public slots:
    void reject() override;

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;

  private:
    void ApplyLayout(const Desktop& desktop);
    void Sync();

    std::shared_ptr<ColorPalette> rules_;
    PaletteView* Frame2_;
    Point place_;
    DialogShow show_;
};

}  // namespace halvek
