// SPDX-License-Identifier: MIT
#include <halvekutils/dialogs/ColorPaletteLayout.h>
#include <halvekutils/qt/QtText.h>
#include <halvekutils/qt/forms/EventGuard.h>
#include <halvekutils/qt/forms/Metrics.h>
#include <halvekutils/qt/forms/PaletteView.h>
#include <halvekutils/qt/forms/frmColor.h>

#include <QCloseEvent>
#include <QKeyEvent>
#include <QStyle>

#include <utility>

namespace halvek {

frmColor::frmColor(std::shared_ptr<ColorPalette> rules, const Desktop& desktop)
    : rules_(std::move(rules)),
      Frame2_(new PaletteView(*rules_, this)),
      show_(*this, [this] { reject(); }) {
    setObjectName(QLatin1String("frmColor"));
    setAttribute(Qt::WA_QuitOnClose, false);
    setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                   Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint);
    setWindowTitle(ToWindowTitle(ColorPalette::kCaption));
    ApplyLayout(desktop);
    rules_->Changed = [this] { Sync(); };
}

frmColor::~frmColor() {
    rules_->Changed = nullptr;
    rules_->Cancel();
}

void frmColor::ApplyLayout(const Desktop& desktop) {
    const Rect screen = ScreenOf(rules_->Anchor(), desktop);
    const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, Frame2_);
    const ColorPaletteLayout layout = LayOutColorPalette(
        rules_->RowCount(), PixelsToTwips(bar), {screen.width, screen.height}, desktop.FrameSize());
    setFixedSize(TwipsToPixels(layout.inner.width), TwipsToPixels(layout.inner.height));
    Frame2_->ApplyLayout(layout);
    place_ = PlacePopup(rules_->Anchor(), layout.form, screen);
}

void frmColor::ShowModal() {
    show_.Modal([this](const QWidget*) {
        return QPoint(TwipsToPixels(place_.left), TwipsToPixels(place_.top));
    });
}

void frmColor::Sync() {
    if (rules_->IsOpen()) {
        Frame2_->FollowCurrent();
    } else {
        show_.End();
    }
}

// Reached by keys that no cell took. QDialog would press buttons on Enter.
void frmColor::keyPressEvent(QKeyEvent* event) {
    Frame2_->TakeKey(*event);
    event->accept();
}

void frmColor::reject() {
    GuardEvent(u"frmColor.Form_QueryUnload", [this] { rules_->Cancel(); });
}

void frmColor::closeEvent(QCloseEvent* event) {
    reject();
    event->accept();
}

void frmColor::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    Frame2_->FollowCurrent();
}

}  // namespace halvek
