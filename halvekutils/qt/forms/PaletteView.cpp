// SPDX-License-Identifier: MIT
#include <halvekutils/dialogs/ColorPaletteLayout.h>
#include <halvekutils/qt/QtText.h>
#include <halvekutils/qt/forms/PaletteView.h>
#include <halvekutils/qt/helpers/Design.h>
#include <halvekutils/qt/helpers/EventGuard.h>
#include <halvekutils/qt/helpers/Keys.h>
#include <halvekutils/qt/helpers/Metrics.h>

#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>

namespace halvek {

namespace {

struct PaletteKey {
    int key;
    ColorPalette::Key action;
};

constexpr PaletteKey kKeys[] = {
    {Qt::Key_Return, ColorPalette::Key::Enter},  {Qt::Key_Enter, ColorPalette::Key::Enter},
    {Qt::Key_Space, ColorPalette::Key::Space},   {Qt::Key_Escape, ColorPalette::Key::Escape},
    {Qt::Key_Left, ColorPalette::Key::Left},     {Qt::Key_Right, ColorPalette::Key::Right},
    {Qt::Key_Up, ColorPalette::Key::Up},         {Qt::Key_Down, ColorPalette::Key::Down},
    {Qt::Key_PageUp, ColorPalette::Key::PageUp}, {Qt::Key_PageDown, ColorPalette::Key::PageDown},
    {Qt::Key_Home, ColorPalette::Key::Home},     {Qt::Key_End, ColorPalette::Key::End},
};

// Around a swatch, in pixels: room for the ring, the ring and a gap inside it.
constexpr double kRingInset = 0.5;
constexpr double kSwatchInset = 4.5;
constexpr int kOutlineOpacity = 140;

bool Chooses(ColorPalette::Key key) {
    return key == ColorPalette::Key::Enter || key == ColorPalette::Key::Space;
}

}  // namespace

// A cell

PaletteCellButton::PaletteCellButton(Color color, QWidget* parent)
    : QAbstractButton(parent), color_(color) {
    setFocusPolicy(Qt::ClickFocus);  // Tab is the palette's own
    setAttribute(Qt::WA_Hover);
}

// An outline that contrasts with the frame separates a swatch of any colour from it; the frame
// separates the cells.
void PaletteCellButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QColor outline = palette().color(QPalette::WindowText);
    if (!underMouse()) outline.setAlpha(kOutlineOpacity);
    const QRectF swatch =
        QRectF(rect()).adjusted(kSwatchInset, kSwatchInset, -kSwatchInset, -kSwatchInset);
    painter.setPen(outline);
    painter.setBrush(ToQColor(color_, palette()));
    painter.drawRoundedRect(swatch, design::kCorner, design::kCorner);
    if (!hasFocus()) return;
    const QColor ring =
        design::Visible(palette().color(QPalette::Highlight), palette().color(QPalette::Window));
    design::PaintRing(
        painter, QRectF(rect()).adjusted(kRingInset, kRingInset, -kRingInset, -kRingInset), ring);
}

void PaletteCellButton::keyPressEvent(QKeyEvent* event) {
    event->ignore();
}
void PaletteCellButton::keyReleaseEvent(QKeyEvent* event) {
    event->ignore();
}

// The frame

PaletteView::PaletteView(ColorPalette& rules, QWidget* parent)
    : QScrollArea(parent), rules_(rules), cells_(rules.Cells().size()) {
    setObjectName(QLatin1String("Frame2"));
    setAccessibleName(tr("Colors"));
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setWidget(new QWidget);
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this,
            [this] { GuardEvent(u"frmColor.Frame2_Scroll", [this] { MakeVisibleCells(); }); });
}

void PaletteView::ApplyLayout(const ColorPaletteLayout& layout) {
    rowsOnPage_ = layout.rowsOnPage;
    const QRect place = ToQRect(layout.frame);
    setVerticalScrollBarPolicy(layout.scrolls ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
    widget()->setFixedSize(place.width(), TwipsToPixels(PaletteHeight(rules_.RowCount())));
    setGeometry(place);
    verticalScrollBar()->setSingleStep(ToQRect(PaletteCellPlace(1)).height());
    MakeVisibleCells();
}

void PaletteView::MakeVisibleCells() {
    constexpr int kRowsBeyond = 2;  // two may show in part
    const int firstRow = PaletteRowAt(PixelsToTwips(verticalScrollBar()->value()));
    const int first = firstRow * ColorPalette::kColumns + 1;
    const int count = (rowsOnPage_ + kRowsBeyond) * ColorPalette::kColumns;
    for (int cell = first; cell < first + count && cell <= rules_.CellCount(); ++cell) {
        PaletteCellButton*& button = cells_[static_cast<std::size_t>(cell) - 1];
        if (button == nullptr) button = MakeCell(cell);
    }
}

PaletteCellButton* PaletteView::MakeCell(int cell) {
    const std::size_t position = static_cast<std::size_t>(cell) - 1;
    auto* const button = new PaletteCellButton(rules_.Cells()[position].color, widget());
    const QString name = ToQString(rules_.CellName(cell));
    button->setObjectName(QStringLiteral("txtPalette_%1").arg(cell));
    button->setAccessibleName(name);
    button->setToolTip(name);
    button->setGeometry(ToQRect(PaletteCellPlace(cell)));
    connect(button, &QAbstractButton::clicked, this, [this, cell] {
        GuardEvent(u"frmColor.txtPalette_Click", [this, cell] { rules_.Click(cell); });
    });
    button->show();
    return button;
}

void PaletteView::FollowCurrent() {
    const QRect place = ToQRect(PaletteCellPlace(rules_.Current()));
    const int border = ToQRect(PaletteCellPlace(1)).top();
    QScrollBar* const bar = verticalScrollBar();
    const int least = place.bottom() + 1 + border - viewport()->height();
    bar->setValue(std::clamp(bar->value(), least, std::max(place.top() - border, least)));
    const std::size_t position = static_cast<std::size_t>(rules_.Current()) - 1;
    if (cells_[position] != nullptr) cells_[position]->setFocus(Qt::OtherFocusReason);
}

bool PaletteView::TakeKey(const QKeyEvent& event) {
    const auto* const known = std::ranges::find(kKeys, event.key(), &PaletteKey::key);
    if (known == std::end(kKeys) || event.modifiers() & kCommands) return false;
    // A key that is still held down from opening the palette must not choose from it.
    if (event.isAutoRepeat() && Chooses(known->action)) return true;
    GuardEvent(u"frmColor.Form_KeyPress",
               [&] { rules_.KeyDown(known->action, std::max(rowsOnPage_, 1)); });
    return true;
}

void PaletteView::keyPressEvent(QKeyEvent* event) {
    event->setAccepted(TakeKey(*event));
}

bool PaletteView::focusNextPrevChild(bool next) {
    GuardEvent(u"frmColor.Form_KeyPress", [&] {
        rules_.KeyDown(next ? ColorPalette::Key::Next : ColorPalette::Key::Previous);
    });
    return true;
}

}  // namespace halvek
