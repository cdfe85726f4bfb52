// SPDX-License-Identifier: MIT
#pragma once

#include <QPoint>
#include <QString>
#include <QWidget>

#include <optional>

// What a person sees of the window in front: controls by their object names, "PARENT:ROW,COLUMN"
// for a cell of a grid.

/// The middle of a control on the screen; for a text box, "NAME:left", just inside its edge.
std::optional<QPoint> PlaceOf(const QWidget& front, const QString& name);

/// A text box's or button's text, or another part: ".selected" text, ".row0" of a grid, ".right" of
/// a window, how many pixels it ends before the screen does, ".inside" whether all of it is on the
/// screen; "focus" for the control with the keyboard, "keys" for Shift, Ctrl and Alt while held.
QString TextSeen(const QWidget& front, const QString& name);
