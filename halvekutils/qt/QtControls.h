#pragma once

#include <halvekutils/base/Export.h>
#include <halvekutils/platform/Controls.h>

#include <memory>

class QAbstractItemView;
class QModelIndex;
class QWidget;

namespace halvek {

/// A widget's window as the form that a dialog is centred on and refreshes; null for null. The
/// widget may be destroyed at any time.
HALVEK_EXPORT std::shared_ptr<OwnerForm> AsOwnerForm(QWidget* window);

/// A button, or any other widget, as the target that a pop-up opens beside; null for null. The
/// widget may be destroyed at any time.
///
///     auto day = utils->ShowCalendarAndCalculateCoordinates(Beside(&button), visit.text());
HALVEK_EXPORT std::shared_ptr<PopupTarget> Beside(QWidget* widget);

/// A cell of a grid or list as such a target: the part of it that the view shows. Null for a null
/// view. The target is gone when the view is, or the cell's row or column.
HALVEK_EXPORT std::shared_ptr<PopupTarget> Beside(QAbstractItemView* view, const QModelIndex& cell);

}  // namespace halvek
