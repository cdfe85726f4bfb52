// SPDX-License-Identifier: MIT
#pragma once

#include <QLatin1String>

#include <functional>

class QPainter;
class QRect;

namespace halvek {

/// Draws a picture that looks the same each time: it is painted once for its size and the pixels of
/// the screen, and kept for the next time. Curved outlines take far longer to paint than to copy.
/// @param name  tells it from other pictures
/// @param number  which one of those of this name it is, its colour say
/// @param paint  paints it into the area's size, from the top left corner (0, 0)
void DrawKept(QPainter& painter, const QRect& area, QLatin1String name, unsigned number,
              const std::function<void(QPainter&)>& paint);

}  // namespace halvek
