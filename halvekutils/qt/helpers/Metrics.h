// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Color.h>
#include <halvekutils/platform/Desktop.h>

#include <QColor>
#include <QFont>
#include <QPalette>
#include <QRect>
#include <QTextOption>

#include <cstdint>

namespace halvek {

// The one place where twips become logical pixels, and the rules' fonts and colours Qt's.

std::int32_t PixelsToTwips(double pixels);
int TwipsToPixels(std::int32_t twips);
QRect ToQRect(const Rect& rect);
Rect ToRect(const QRect& rect);
QFont ToQFont(const FontSpec& font);

/// How a host's text wraps: at words, or anywhere when a word is so long that looking for its end
/// at every line would take too long.
QTextOption WrappingOf(const QString& text);

/// A colour of the rules; those of the desktop's scheme come from the palette.
QColor ToQColor(Color color, const QPalette& palette);

/// A palette for drawing check boxes. Styles outline them in a dark tone of the window's colour,
/// which a dark desktop would swallow.
QPalette WithVisibleOutline(QPalette palette);

}  // namespace halvek
