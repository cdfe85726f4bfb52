// SPDX-License-Identifier: MIT
#pragma once

#include <QPointF>
#include <QtGlobal>

namespace halvek {

/// A press of a mouse button.
struct MousePress {
    Qt::MouseButton button = Qt::NoButton;
    QPointF place;  ///< on the screen
    quint64 time = 0;
};

/// Swallows the next press, wherever it goes, if it makes a double click with `first`. A dialog
/// that `first` has closed calls this; otherwise the second click would press what is beneath.
void SwallowSecondClick(const MousePress& first);

}  // namespace halvek
