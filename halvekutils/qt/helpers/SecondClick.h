// SPDX-License-Identifier: MIT
#pragma once

#include <QPoint>
#include <QtGlobal>

namespace halvek {

/// A button of the mouse that went down.
struct MousePress {
    Qt::MouseButton button = Qt::NoButton;
    QPoint place;  ///< on the screen
    quint64 time = 0;
};

/// Swallows the next press, wherever it goes, when it makes a double click with `first`. A dialog
/// that `first` has closed calls it, or the second click would press what lies beneath.
void SwallowSecondClick(const MousePress& first);

}  // namespace halvek
