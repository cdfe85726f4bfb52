// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/dialogs/ColorPalette.h>

#include <QAbstractButton>
#include <QColor>
#include <QScrollArea>

#include <vector>

namespace halvek {

struct ColorPaletteLayout;

/// A cell of the palette. Its keys are the palette's.
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
/// A cell is made when it first comes into view, so that a list of any length opens at once.
class PaletteView : public QScrollArea {
    Q_OBJECT

  public:
    PaletteView(ColorPalette& rules, QWidget* parent);

    /// Takes its place.
    void ApplyLayout(const ColorPaletteLayout& layout);

    /// Scrolls to the current cell and gives it the focus.
    void FollowCurrent();

    /// True for a key that is the palette's.
    bool TakeKey(const QKeyEvent& event);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    bool focusNextPrevChild(bool next) override;

  private:
    void MakeVisibleCells();
    PaletteCellButton* MakeCell(int cell);

    ColorPalette& rules_;
    std::vector<PaletteCellButton*> cells_;  ///< null for one that was never in view
    int rowsOnPage_ = 1;
};

}  // namespace halvek
