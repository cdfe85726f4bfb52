// SPDX-License-Identifier: MIT
#include <halvekutils/qt/QtText.h>
#include <halvekutils/qt/forms/SelectGridDelegate.h>
#include <halvekutils/qt/helpers/Design.h>
#include <halvekutils/qt/helpers/EventGuard.h>
#include <halvekutils/qt/helpers/Metrics.h>

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

#include <algorithm>

namespace halvek {

namespace {

constexpr int kParts = SelectionList::kRowsPerBand;
constexpr int kTextMargin = 5;

/// How much of the colour of selected texts the ticked entries have, in per cent.
constexpr int kTint = 22;

/// No cell is wide enough to show more.
constexpr qsizetype kMaxShown = 500;

void DrawCheckMark(QPainter& painter, const QStyleOptionViewItem& option, const QRect& area,
                   bool checked) {
    const QStyle& style = *option.widget->style();
    QStyleOptionViewItem mark(option);
    const QSize size(style.pixelMetric(QStyle::PM_IndicatorWidth, &mark, mark.widget),
                     style.pixelMetric(QStyle::PM_IndicatorHeight, &mark, mark.widget));
    mark.rect = QStyle::alignedRect(mark.direction, Qt::AlignLeft | Qt::AlignVCenter, size,
                                    area.adjusted(kTextMargin, 0, -kTextMargin, 0));
    mark.palette = WithVisibleOutline(option.palette);
    mark.state = QStyle::State_Enabled | QStyle::State_Active;
    mark.state |= checked ? QStyle::State_On : QStyle::State_Off;
    style.drawPrimitive(QStyle::PE_IndicatorItemViewItemCheck, &mark, &painter, mark.widget);
}

/// A text with its end cut off, or its middle if a text beside it would then read the same.
QString CutToWidth(const QString& text, const TextsBeside& beside, const QFontMetrics& letters,
                   int width) {
    const QString cut = letters.elidedText(text, Qt::ElideRight, width);
    if (cut == text || !beside) return cut;
    const bool isAlike = std::ranges::any_of(beside(), [&](const QString& other) {
        return other != text &&
               letters.elidedText(other.left(kMaxShown), Qt::ElideRight, width) == cut;
    });
    return isAlike ? letters.elidedText(text, Qt::ElideMiddle, width) : cut;
}

}  // namespace

void DrawCellText(QPainter& painter, const QRect& area, const SelectCell& cell, const QColor& color,
                  const TextsBeside& beside) {
    const QRect inner = area.adjusted(kTextMargin, 0, -kTextMargin, 0);
    const QString text = ToQString(std::u16string_view(cell.text).substr(0, kMaxShown));
    QFont font = ToQFont(cell.font);
    font.setStrikeOut(cell.IsStruckOut());
    painter.setFont(font);
    painter.setPen(color);
    const bool centred = cell.alignment == SelectCell::Alignment::Centre;
    painter.drawText(
        inner, Qt::AlignVCenter | Qt::TextSingleLine | (centred ? Qt::AlignHCenter : Qt::AlignLeft),
        CutToWidth(text, beside, painter.fontMetrics(), inner.width()));
}

SelectGridDelegate::SelectGridDelegate(const SelectGridModel& model, int descriptionHeight,
                                       QObject* parent)
    : QAbstractItemDelegate(parent), model_(model), descriptionHeight_(descriptionHeight) {}

QRect SelectGridDelegate::PartOf(const QRect& cell, int part) const {
    const int description = cell.bottom() + 1 - descriptionHeight_;
    const int code = (cell.top() + description) / 2;
    const int edges[] = {cell.top(), code, description, cell.bottom() + 1};
    return QRect(cell.left(), edges[part], cell.width(), edges[part + 1] - edges[part]);
}

void SelectGridDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                               const QModelIndex& index) const {
    GuardEvent(u"frmSelectGrid_grdSelection.GetStyleRowCol", [&] {
        painter->save();
        const QPalette& palette = option.palette;
        if (model_.CellOf(index, 0).checked) {
            painter->fillRect(option.rect, design::Blended(palette.color(QPalette::Highlight),
                                                           palette.color(QPalette::Base), kTint));
        }
        for (int part = 0; part < kParts; ++part) {
            const SelectCell cell = model_.CellOf(index, part);
            const QRect area = PartOf(option.rect, part);
            QColor text = palette.color(QPalette::Text);
            if (cell.background) {
                painter->fillRect(area, ToQColor(*cell.background, palette));
                text = Qt::black;
            }
            if (cell.textColor) text = ToQColor(*cell.textColor, palette);
            if (cell.kind == SelectCell::Kind::Check) {
                DrawCheckMark(*painter, option, area, cell.checked);
            } else {
                DrawCellText(*painter, area, cell, text,
                             [&] { return model_.TextsBeside(index, part); });
            }
        }
        painter->restore();
    });
}

QSize SelectGridDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const {
    return option.rect.size();
}

bool SelectGridDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view,
                                   const QStyleOptionViewItem& option, const QModelIndex& index) {
    if (event->type() != QEvent::ToolTip) return false;
    GuardEvent(u"frmSelectGrid_grdSelection.GetStyleRowCol", [&] {
        for (int part = 0; part < kParts; ++part) {
            const QRect area = PartOf(option.rect, part);
            if (!area.contains(event->pos())) continue;
            const SelectCell cell = model_.CellOf(index, part);
            QToolTip::showText(event->globalPos(), ToToolTip(cell.toolTip), view, area);
        }
    });
    return true;
}

}  // namespace halvek
