// SPDX-License-Identifier: MIT
#include <halvekutils/qt/helpers/Metrics.h>
#include <halvekutils/qt/helpers/PlainTextLayout.h>

#include <QTextLayout>

#include <algorithm>

namespace halvek {

namespace {

constexpr QStringView kEnds = u"\n\r\u2029\uFDD0\uFDD1";
constexpr double kUnlimited = 8'000'000;  // close to the widest line that Qt can lay out

QTextOption Unfolded(QTextOption::Flags flags) {
    QTextOption option;
    option.setWrapMode(QTextOption::NoWrap);
    option.setFlags(flags);
    return option;
}

/// Where a text control ends the paragraph that begins at `start`; two of the characters are not
/// for texts and frame parts of its document.
qsizetype EndOfParagraph(const QString& text, qsizetype start) {
    const auto ends = [](QChar c) { return kEnds.contains(c); };
    return std::find_if(text.begin() + start, text.end(), ends) - text.begin();
}

qsizetype NextParagraph(const QString& text, qsizetype end) {
    return end + (QStringView(text).mid(end).startsWith(u"\r\n") ? 2 : 1);
}

}  // namespace

PlainTextLayout::PlainTextLayout(const QString& text, const QFont& font)
    : text_(text), font_(font) {}

double PlainTextLayout::Width() const {
    return LaidOut(Unfolded(QTextOption::IncludeTrailingSpaces), kUnlimited).width;
}

double PlainTextLayout::Height() const {
    return LaidOut(Unfolded({}), kUnlimited).height;
}

double PlainTextLayout::FoldedHeight(int width) const {
    return LaidOut(WrappingOf(text_), width).height;
}

// The control's own document does the same for each paragraph, and ten times as much around it.
PlainTextLayout::Extent PlainTextLayout::LaidOut(const QTextOption& option, double width) const {
    Extent extent;
    for (qsizetype start = 0; start <= text_.size();) {
        const qsizetype end = EndOfParagraph(text_, start);
        QTextLayout paragraph(text_.mid(start, end - start), font_);
        paragraph.setTextOption(option);
        paragraph.beginLayout();
        for (QTextLine line = paragraph.createLine(); line.isValid();
             line = paragraph.createLine()) {
            line.setLeadingIncluded(true);
            line.setLineWidth(width);
            extent.width = std::max(extent.width, line.naturalTextWidth());
            extent.height += line.height();
        }
        paragraph.endLayout();
        start = NextParagraph(text_, end);
    }
    return extent;
}

}  // namespace halvek
