// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QIcon>
#include <QKeySequence>
#include <QPushButton>
#include <QString>
#include <QToolButton>

namespace frontdesk {

/// One of the glyphs in icons/, in a colour, or in the text colour that the desktop has when it is
/// painted.
QIcon MakeIcon(const QString& glyph, const QColor& color = {});

/// A button of a screen.
QPushButton* MakeButton(const QString& text);

/// The one button of a screen that goes on with the visit, also by Ctrl+Enter.
QPushButton* MakePrimaryButton(const QString& text);

/// Gives a button whose text changes its text; its key stays.
void SetText(QPushButton& button, const QString& text);

/// A small button without a text, with its name and key in its tool tip.
QToolButton* MakeToolButton(const QString& name, const QKeySequence& key);

}  // namespace frontdesk
