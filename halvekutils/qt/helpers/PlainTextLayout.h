// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>
#include <QString>
#include <QTextDocument>
#include <QTextOption>

namespace halvek {

/// Measures plain text as a text control paints it: with its line heights, tab stops and line
/// breaks. Lengths are logical pixels.
class PlainTextLayout {
  public:
    PlainTextLayout(const QString& text, const QFont& font);

    /// The width of the widest line, unfolded, trailing blanks included.
    double Width();
    /// The height of all lines, unfolded.
    double Height();
    /// The height of all lines, folded at this width.
    double FoldedHeight(int width);

  private:
    QTextDocument document_;
    QTextOption folding_;
};

}  // namespace halvek
