// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QWidget>

#include <functional>

namespace frontdesk {

/// One step of the tour in an open dialog.
struct TourStep {
    /// Returns true when it is done; otherwise it is called again a little later. May throw to end
    /// the tour with a message.
    std::function<bool(QWidget& dialog)> run;
};

// Widgets are named by their objectName; the empty name means the dialog itself. Events are posted
// as the window system would post them.

/// Clicks a widget with the left mouse button.
TourStep Click(const QString& widget, int times = 1);

/// Presses and releases a key in a widget.
TourStep PressKey(const QString& widget, Qt::Key key, Qt::KeyboardModifiers modifiers = {});

/// Types a text into a widget, key by key.
TourStep TypeText(const QString& widget, const QString& text);

/// Clicks a cell of a grid, or the heading above its columns.
TourStep ClickCell(const QString& grid, int row, int column);
TourStep ClickHeading(const QString& table);

/// Asks the dialog to close, as its close box does.
TourStep CloseWindow();

/// Waits until the title bar holds a text.
TourStep WaitForTitle(const QString& text);

}  // namespace frontdesk
