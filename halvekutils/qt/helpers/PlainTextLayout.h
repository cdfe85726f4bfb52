// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>
#include <QString>
#include <QTextDocument>
#include <QTextOption>

namespace halvek {

/// Measures plain text as a text control paints it: with its line heights, its tab stops and the
/// lines that it breaks. Lengths are logical pixels.
class PlainTextLayout {
  public:
    PlainTextLayout(const QString& text, const QFont& font);

    /// Of the widest line when none is folded, with the blanks at its end.
    double Width();
    /// Of all lines when none is folded.
    double Height();
    /// Of all lines when they fold at this width.
    double FoldedHeight(int width);

  private:
    QTextDocument document_;
    QTextOption folding_;
};

}  // namespace halvek
