// SPDX-License-Identifier: MIT
#pragma once

#include <QtWidgets>

#include <optional>

// What a person sees of the window in front: controls by their object names, "PARENT:ROW,COLUMN"
// for a cell of a grid.

/// The middle of a control on the screen; for a text box, "NAME:left", just inside its edge.
std::optional<QPoint> PlaceOf(const QWidget& front, const QString& name);

/// A text box's or button's text, or another part: ".selected" text, ".row0" of a grid, ".inside"
/// whether all of a window is on the screen; "focus" for the control with the keyboard, "keys" for
/// Shift, Ctrl and Alt while held, "clipboard" for its text, "title" for the window's, "heard" for
/// all controls as screen readers meet them. ";" ends a line.
QString TextSeen(const QWidget& front, const QString& name);
