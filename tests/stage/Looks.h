// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Gives the application, before its first window opens, colours that are the same on every desktop
/// and a caret that does not blink, so that pictures can be compared.
/// @param palette  "light", "dark" or "contrast", white on black
/// @param points  of the font; 0 for the desktop's
void UseLooks(const QString& palette, int points);
