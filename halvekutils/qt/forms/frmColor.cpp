// SPDX-License-Identifier: MIT
#include <halvekutils/dialogs/ColorPaletteLayout.h>
#include <halvekutils/qt/QtText.h>
#include <halvekutils/qt/forms/PaletteView.h>
#include <halvekutils/qt/forms/frmColor.h>
#include <halvekutils/qt/helpers/Metrics.h>

#include <QKeyEvent>
#include <QLabel>
#include <QStyle>

namespace halvek {

namespace {

constexpr const char* kWidestName = "light orange, 100 (#DDDDDD)";

}  // namespace

frmColor::frmColor(const std::shared_ptr<ColorPalette>& rules, const Desktop& desktop)
    : DialogForm(rules, u"frmColor"),
      rules_(*rules),
      cells_(new PaletteView(*rules, this)),
      name_(new QLabel(this)) {
    setWindowTitle(ToWindowTitle(ColorPalette::kCaption));
    const Rect screen = ScreenOf(rules->Anchor(), desktop);
    const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, cells_);
    name_->setObjectName(QLatin1String("lblName"));
    name_->setTextFormat(Qt::PlainText);
    name_->setWordWrap(true);
    name_->setText(tr(kWidestName));
    const int room = ToQRect(PaletteCellPlace(ColorPalette::kColumns)).right();
    const ColorPaletteLayout layout = LayOutColorPalette(
        rules->RowCount(), PixelsToTwips(bar), PixelsToTwips(name_->heightForWidth(room)),
        {screen.width, screen.height}, desktop.FrameSize());
    setFixedSize(TwipsToPixels(layout.inner.width), TwipsToPixels(layout.inner.height));
    name_->setGeometry(ToQRect(layout.name));
    cells_->ApplyLayout(layout);
    OpenAt(rules->Anchor(), layout.form, desktop);
}

void frmColor::Refresh() {
    const QString name = ToQString(rules_.CellName(rules_.Current()));
    name_->setText(name);
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
