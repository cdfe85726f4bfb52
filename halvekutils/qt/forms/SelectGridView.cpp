// SPDX-License-Identifier: MIT
#include <halvekutils/qt/QtText.h>
#include <halvekutils/qt/forms/SelectGridDelegate.h>
#include <halvekutils/qt/forms/SelectGridSpeech.h>
#include <halvekutils/qt/forms/SelectGridView.h>
#include <halvekutils/qt/helpers/Design.h>
#include <halvekutils/qt/helpers/EventGuard.h>
#include <halvekutils/qt/helpers/FieldOutline.h>
#include <halvekutils/qt/helpers/Keys.h>
#include <halvekutils/qt/helpers/Metrics.h>
#include <halvekutils/qt/helpers/SpokenPicker.h>
#include <halvekutils/selection/SelectGridLayout.h>

#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QToolTip>

#include <algorithm>
#include <utility>

namespace halvek {

namespace {

struct GridKey {
    int key;
    SelectGrid::Key action;
};

constexpr GridKey kKeys[] = {
    {Qt::Key_Space, SelectGrid::Key::Space},
    {Qt::Key_PageUp, SelectGrid::Key::PageUp},
    {Qt::Key_PageDown, SelectGrid::Key::PageDown},
    {Qt::Key_End, SelectGrid::Key::End},
    {Qt::Key_Home, SelectGrid::Key::Home},
    {Qt::Key_Left, SelectGrid::Key::Left},
    {Qt::Key_Up, SelectGrid::Key::Up},
    {Qt::Key_Right, SelectGrid::Key::Right},
    {Qt::Key_Down, SelectGrid::Key::Down},
};

constexpr std::size_t kMaxNameLength = 2000;
constexpr std::size_t kMaxToolTipLines = 30;

Qt::ScrollBarPolicy Bar(bool shown) {
    return shown ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff;
}

}  // namespace

// The header

SelectGridHeader::SelectGridHeader(SelectGrid& rules, QWidget* parent)
    : QHeaderView(Qt::Horizontal, parent), rules_(rules) {
    setObjectName(QLatin1String("hdrSelection"));
    setSectionResizeMode(QHeaderView::Fixed);
    setMinimumSectionSize(1);
}

void SelectGridHeader::Refresh() {
    SelectCell cell = rules_.Cell(0, 1);
    if (cell.kind == cell_.kind && cell.text == cell_.text) return;
    cell_ = std::move(cell);
    setAccessibleName(ToQString(std::u16string_view(cell_.text).substr(0, kMaxNameLength)));
    viewport()->update();
}

void SelectGridHeader::paintEvent(QPaintEvent*) {
    QPainter painter(viewport());
    const QRect area = viewport()->rect();
    painter.fillRect(area, ToQColor(cell_.background.value_or(kWhite), palette()));
    DrawCellText(painter, area, cell_, Qt::black);
    painter.setPen(QColor(0, 0, 0, 90));
    painter.drawLine(area.bottomLeft(), area.bottomRight());
}

void SelectGridHeader::mousePressEvent(QMouseEvent* event) {
    pressed_ = false;
    if (event->button() != Qt::LeftButton) return;
    GuardEvent(u"frmSelectGrid.grdSelection_OnLButtonHitRowCol",
               [this] { pressed_ = !MayTakeFocus || MayTakeFocus(); });
}

void SelectGridHeader::mouseReleaseEvent(QMouseEvent* event) {
    const bool clicked = std::exchange(pressed_, false) && event->button() == Qt::LeftButton &&
                         viewport()->rect().contains(event->position().toPoint());
    if (!clicked) return;
    GuardEvent(u"frmSelectGrid.grdSelection_OnLButtonHitRowCol", [this] { rules_.ClickHeader(); });
}

void SelectGridHeader::mouseMoveEvent(QMouseEvent*) {}
void SelectGridHeader::mouseDoubleClickEvent(QMouseEvent*) {}

bool SelectGridHeader::viewportEvent(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return QHeaderView::viewportEvent(event);
    const auto* const help = static_cast<QHelpEvent*>(event);
    GuardEvent(u"frmSelectGrid_grdSelection.GetStyleRowCol", [&] {
        const std::u16string chosen = rules_.ChoiceInWords(kMaxToolTipLines);
        QToolTip::showText(help->globalPos(), ToToolTip(chosen.empty() ? cell_.text : chosen),
                           this);
    });
    return true;
}

// The grid

SelectGridView::SelectGridView(SelectGrid& rules, QWidget* parent)
    : QTableView(parent),
      rules_(rules),
      model_(rules, nullptr),
      header_(new SelectGridHeader(rules, this)),
      spoken_(new SpokenPicker(*this)) {
    setObjectName(QLatin1String("grdSelection"));
    setHorizontalHeader(header_);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setMinimumSectionSize(1);
    new FieldOutline(*this);
    setCornerButtonEnabled(false);
    setShowGrid(true);
    setTabKeyNavigation(false);
    setSelectionMode(QAbstractItemView::NoSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    // mousePressEvent decides whether a click moves the focus.
    setFocusPolicy(Qt::TabFocus);
    viewport()->setPalette(design::Paper(palette()));
    setModel(&model_);
}

void SelectGridView::AskBeforeFocus(const std::function<bool()>& mayTakeFocus) {
    mayTakeFocus_ = mayTakeFocus;
    header_->MayTakeFocus = mayTakeFocus;
}

void SelectGridView::ApplyLayout(const SelectGridLayout& layout) {
    QRect place = ToQRect(layout.grid);
    const int headerHeight = TwipsToPixels(layout.headerHeight);
    const int description = TwipsToPixels(layout.descriptionHeight);
    const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
    const int beside = headerHeight + 2 * frameWidth() + (layout.scrollsAcross ? bar : 0);
    int band = 2 * TwipsToPixels(layout.codeHeight) + description;
    // Twips may round to a pixel too many.
    if (layout.bandsOnPage > 1)
        band = std::min(band, (place.height() - beside) / layout.bandsOnPage);
    place.setHeight(std::min(place.height(), beside + layout.bandsOnPage * band));
    setGeometry(place);
    setHorizontalScrollBarPolicy(Bar(layout.scrollsAcross));
    setVerticalScrollBarPolicy(Bar(layout.scrollsDown));
    header_->setFixedHeight(headerHeight);
    verticalHeader()->setDefaultSectionSize(band);
    setItemDelegate(new SelectGridDelegate(model_, description, this));

    const int columns = model_.columnCount();
    int width = place.width() - 2 * frameWidth() - (layout.scrollsDown ? bar : 0);
    if (layout.scrollsAcross) width = columns * TwipsToPixels(layout.columnWidth);
    for (int i = 0; i < columns; ++i) {
        header_->resizeSection(i, width * (i + 1) / columns - width * i / columns);
    }
}

void SelectGridView::Refresh() {
    header_->Refresh();
    // A key in the box of codes ticks nothing, and drawing the cells takes a third of its time.
    const bool ticked = shownTicks_ != rules_.TicksVersion();
    if (ticked) {
        const int last = rowAt(viewport()->height() - 1);
        model_.Refresh(rowAt(0), last < 0 ? model_.rowCount() - 1 : last);
    }
    spoken_->Tell(SpokenEntryOf(rules_));
    const QModelIndex current = model_.IndexOf(rules_.CurrentCell());
    if (current != currentIndex()) {
        selectionModel()->setCurrentIndex(current, QItemSelectionModel::NoUpdate);
        viewport()->update();
        emit CurrentEntryChanged();
    }
    if (ticked) {
        shownTicks_ = rules_.TicksVersion();
        emit TicksChanged();
    }
}

void SelectGridView::ShowCurrent() {
    executeDelayedItemsLayout();
    const QModelIndex current = currentIndex();
    if (!viewport()->rect().contains(visualRect(current))) scrollTo(current, PositionAtCenter);
}

void SelectGridView::KeepRing(bool isKept) {
    if (std::exchange(keepsRing_, isKept) != isKept) viewport()->update();
}

void SelectGridView::keyPressEvent(QKeyEvent* event) {
    bool taken = false;
    GuardEvent(u"frmSelectGrid.grdSelection_OnGridKeyDown", [&] { taken = PressKey(*event); });
    event->setAccepted(taken);
}

bool SelectGridView::PressKey(const QKeyEvent& event) {
    if (IsEnter(event)) {
        emit Accepted();
        return true;
    }
    const auto* const known = std::ranges::find(kKeys, event.key(), &GridKey::key);
    if (known != std::end(kKeys)) {
        const int band = std::max(verticalHeader()->defaultSectionSize(), 1);
        rules_.KeyDown(known->action, std::max(viewport()->height() / band, 1));
        return true;
    }
    const QChar typed(TypedBy(event));
    const bool asks = typed.isLetterOrNumber() || typed == u'/';
    if (asks) emit FindAsked(typed == u'/' ? QString() : QString(typed));
    return asks;
}

void SelectGridView::mousePressEvent(QMouseEvent* event) {
    pressed_ = QModelIndex();
    if (event->button() != Qt::LeftButton) return;
    GuardEvent(u"frmSelectGrid.grdSelection_OnLButtonHitRowCol", [&] {
        const QModelIndex entry = indexAt(event->position().toPoint());
        // A code accepted on the way must not scroll the entry away from under the mouse.
        setAutoScroll(false);
        const bool may = !mayTakeFocus_ || mayTakeFocus_();
        setAutoScroll(true);
        if (!may) return;
        setFocus(Qt::MouseFocusReason);
        pressed_ = entry;
    });
}

void SelectGridView::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    const QModelIndex pressed = std::exchange(pressed_, QPersistentModelIndex());
    if (!pressed.isValid() || indexAt(event->position().toPoint()) != pressed) return;
    GuardEvent(u"frmSelectGrid.grdSelection_OnLButtonHitRowCol", [&] { Click(pressed); });
}

void SelectGridView::Click(const QModelIndex& entry) {
    const CellPlace place = SelectGridModel::PlaceOf(entry);
    rules_.ClickCell(place.row, place.column);
}

void SelectGridView::mouseMoveEvent(QMouseEvent*) {}

void SelectGridView::mouseDoubleClickEvent(QMouseEvent* event) {
    mousePressEvent(event);
}

void SelectGridView::focusInEvent(QFocusEvent* event) {
    QTableView::focusInEvent(event);
    viewport()->update();
}

void SelectGridView::focusOutEvent(QFocusEvent* event) {
    QTableView::focusOutEvent(event);
    viewport()->update();
}

void SelectGridView::paintEvent(QPaintEvent* event) {
    QTableView::paintEvent(event);
    const QModelIndex current = currentIndex();
    if (!current.isValid()) return;
    QPainter painter(viewport());
    const QRect entry = visualRect(current);
    if (hasFocus() || keepsRing_) {
        design::PaintRing(painter, entry,
                          design::Visible(palette().color(QPalette::Highlight), Qt::white));
    } else {
        painter.setPen(Qt::gray);
        painter.drawRect(entry.adjusted(0, 0, -1, -1));
    }
}

// White throughout: the entries' colours come from the rules and need white around them.
void SelectGridView::initViewItemOption(QStyleOptionViewItem* option) const {
    QTableView::initViewItemOption(option);
    option->palette = design::Paper(option->palette);
}

}  // namespace halvek
