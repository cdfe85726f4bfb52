// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/platform/Design.h>

#include <QColor>
#include <QFont>
#include <QPalette>

#include <initializer_list>

class QLayout;
class QPainter;
class QPushButton;
class QRectF;
class QString;
class QWidget;

/// The look that all windows share; lengths are logical pixels.
namespace halvek::design {

inline constexpr double kRingWidth = 2;  ///< of the ring around the control with the focus
inline constexpr double kCorner = 3;     ///< the radius of rounded corners
inline constexpr int kMinTarget = 24;  ///< what the pointer can hit is this wide and high at least

int Margin();
int Gap();

/// Gives a layout the margin around it and the gap between its parts.
void SpaceOut(QLayout& layout);

/// The contrast of two colours, from 1 to 21; lines need 3, text needs 4.5.
double Contrast(const QColor& one, const QColor& other);

/// The least contrast of two colours chosen by a host; below it nobody can read the text.
inline constexpr double kMinHostContrast = 2;

/// Whether the desktop has text in black on white or white on black, and nothing between them.
bool IsHighContrast();

/// The first colour if its contrast with the ground suffices, else black or white.
QColor Visible(const QColor& wanted, const QColor& ground, double contrast = 3);

/// A colour between two: `share` per cent of the first.
QColor Blended(const QColor& one, const QColor& other, int share);

/// Light paper with black text, for contents that have fixed light colours on any desktop.
QPalette Paper(QPalette desktop);

/// The desktop's own font, so many times as large.
QFont ScaledFont(double factor);

/// Draws the ring just inside the area.
void PaintRing(QPainter& painter, const QRectF& area, const QColor& color);

/// A push button in the common look: shows the ring when it has the focus; an Enter meant for
/// another control never presses it.
QPushButton* NewButton(const char* name, const QString& caption, QWidget* parent = nullptr);

/// Gives a group of buttons one size, which fits the widest of their captions.
void MakeAlike(std::initializer_list<QPushButton*> buttons);

}  // namespace halvek::design
