// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>
#include <QString>
#include <QTextOption>

namespace halvek {

/// Measures plain text as a text control paints it: with its line heights, tab stops and line
/// breaks. Lengths are logical pixels.
class PlainTextLayout {
  public:
    PlainTextLayout(const QString& text, const QFont& font);

    /// The width of the widest line, unfolded, trailing blanks included.
    double Width() const;
    /// The height of all lines, unfolded.
    double Height() const;
    /// The height of all lines, folded at this width.
    double FoldedHeight(int width) const;

  private:
    struct Extent {
        double width = 0;
        double height = 0;
    };
    Extent LaidOut(const QTextOption& option, double width) const;

    QString text_;
    QFont font_;
};

}  // namespace halvek
