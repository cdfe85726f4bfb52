// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Export.h>
#include <halvekutils/platform/Controls.h>

#include <memory>

class QAbstractItemView;
class QComboBox;
class QModelIndex;
class QRect;
class QWidget;

namespace halvek {

/// A widget's window as the form that a dialog is centred on and refreshes; null for null. The
/// widget may be destroyed at any time.
HALVEK_EXPORT std::shared_ptr<OwnerForm> AsOwnerForm(QWidget* window);

/// A button, or any other widget, as the target that a pop-up opens beside; null for null. The
/// widget may be destroyed at any time.
///
/// @code{.cpp}
/// auto day = utils->ShowCalendarAndCalculateCoordinates(Beside(&button), visit.text());
/// @endcode
HALVEK_EXPORT std::shared_ptr<PopupTarget> Beside(QWidget* widget);

/// A cell of a grid or list as such a target: the part of it that the view shows or, when it is
/// scrolled out of view, the view's edge nearest to it. Null for a null view. The target ends with
/// the view, the row or the column of the cell.
HALVEK_EXPORT std::shared_ptr<PopupTarget> Beside(QAbstractItemView* view, const QModelIndex& cell);

/// A place on the screen as such a target, in the pixels that QWidget::mapToGlobal and
/// QQuickItem::mapToGlobal give: for a host whose buttons are not widgets.
///
/// @code{.cpp}
/// const QRectF place(item->mapToGlobal(QPointF()), item->size());
/// auto day = utils->ShowCalendarAndCalculateCoordinates(Beside(place.toRect()));
/// @endcode
HALVEK_EXPORT std::shared_ptr<PopupTarget> Beside(const QRect& place);

// Controls for the members of Utils that work on them; null for null. Each may be destroyed at any
// time.

/// The caption of a field, for HighlightHeading: a QLabel, QRadioButton or QCheckBox; any other
/// widget stays as it is.
///
/// The heading's colours override the host's palettes and style sheets; everything else in these,
/// fonts and margins above all, still applies. Text on disabled controls is paler.
HALVEK_EXPORT std::shared_ptr<HeadingControl> AsHeading(QWidget* control);

/// A widget's font, for SetFontProperties. It reports the size on the screen, which is in whole
/// pixels: 6.75 for 7 points at 96 dots per inch.
HALVEK_EXPORT std::shared_ptr<ControlFont> FontOf(QWidget* widget);

/// The font of a grid's cells and headers, for GridSetFontObject.
HALVEK_EXPORT std::shared_ptr<GridFont> GridFontOf(QAbstractItemView* grid);

/// A combo box, for FillCombo and FindInCombo. A box that is widened gets at most half the screen's
/// width.
///
/// One with 1000 entries or more no longer takes its width from them and, unless it has a style
/// sheet of its own, drops down as a list with a scroll bar; otherwise it would take seconds to
/// open.
HALVEK_EXPORT std::shared_ptr<ComboBox> AsComboBox(QComboBox* box);

}  // namespace halvek
