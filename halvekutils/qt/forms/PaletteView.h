// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/dialogs/ColorPalette.h>

#include <QAbstractButton>
#include <QColor>
#include <QScrollArea>

#include <vector>

namespace halvek {

struct ColorPaletteLayout;

/// A cell of the palette, which handles its keys.
class PaletteCellButton : public QAbstractButton {
    Q_OBJECT

  public:
    PaletteCellButton(Color color, QWidget* parent);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;

  private:
    Color color_;
};

/// Frame2: shows the cells of a palette and hands keys and clicks to the rules.
///
/// A cell is made when it first comes into view, so a list of any length opens at once.
class PaletteView : public QScrollArea {
    Q_OBJECT

  public:
    PaletteView(ColorPalette& rules, QWidget* parent);

    /// Applies its place and size.
    void ApplyLayout(const ColorPaletteLayout& layout);

    /// Scrolls to the current cell and gives it the focus.
    void FollowCurrent();

    /// True when the palette handles the key.
    bool TakeKey(const QKeyEvent& event);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    bool focusNextPrevChild(bool next) override;

  private:
    void MakeVisibleCells();
    PaletteCellButton* MakeCell(int cell);

    ColorPalette& rules_;
    std::vector<PaletteCellButton*> cells_;  ///< null for a cell that was never in view
    int rowsOnPage_ = 1;
};

}  // namespace halvek
