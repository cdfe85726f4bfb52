// SPDX-License-Identifier: MIT
#include <halvekutils/dialogs/ColorPaletteLayout.h>
#include <halvekutils/qt/QtText.h>
#include <halvekutils/qt/forms/PaletteView.h>
#include <halvekutils/qt/forms/frmColor.h>
#include <halvekutils/qt/helpers/Metrics.h>

#include <QKeyEvent>
#include <QStyle>

namespace halvek {

frmColor::frmColor(const std::shared_ptr<ColorPalette>& rules, const Desktop& desktop)
    : DialogForm(rules, u"frmColor"), cells_(new PaletteView(*rules, this)) {
    setWindowTitle(ToWindowTitle(ColorPalette::kCaption));
    const Rect screen = ScreenOf(rules->Anchor(), desktop);
    const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, cells_);
    const ColorPaletteLayout layout = LayOutColorPalette(
        rules->RowCount(), PixelsToTwips(bar), {screen.width, screen.height}, desktop.FrameSize());
    setFixedSize(TwipsToPixels(layout.inner.width), TwipsToPixels(layout.inner.height));
    cells_->ApplyLayout(layout);
    OpenAt(rules->Anchor(), layout.form, desktop);
}

void frmColor::Refresh() {
    cells_->FollowCurrent();
}

void frmColor::keyPressEvent(QKeyEvent* event) {
    cells_->TakeKey(*event);
    event->accept();
}

void frmColor::showEvent(QShowEvent* event) {
    DialogForm::showEvent(event);
    cells_->FollowCurrent();
}

}  // namespace halvek
