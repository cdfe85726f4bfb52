// SPDX-License-Identifier: MIT
#pragma once

class QRect;
class QScreen;
class QSize;
class QWidget;

namespace halvek {

/// The window that a dialog opened now belongs to: the active modal window, else the active window,
/// which the debug console never counts as; null when the application has none.
QWidget* CurrentOwner();

/// The screen for a dialog opened now; null without a display.
QScreen* CurrentScreen();

/// Makes `owner` the window that `dialog` stays above. It does not become the dialog's parent: a
/// host that destroys the owner must not destroy a dialog that is still running.
void SetOwner(QWidget& dialog, QWidget* owner);

/// Where a dialog of this outer size opens: centred on the owner or else on the screen, wholly
/// visible.
QRect CentredPlace(const QSize& outer, const QWidget* owner);

/// Moves a rectangle into the part of its screen that windows may use.
QRect Inside(const QRect& place, const QScreen* screen);

}  // namespace halvek
