// SPDX-License-Identifier: MIT
#include <halvekutils/qt/helpers/Metrics.h>
#include <halvekutils/qt/helpers/PlainTextLayout.h>

namespace halvek {

namespace {

QTextOption Unfolded(QTextOption::Flags flags) {
    QTextOption option;
    option.setWrapMode(QTextOption::NoWrap);
    option.setFlags(flags);
    return option;
}

}  // namespace

PlainTextLayout::PlainTextLayout(const QString& text, const QFont& font)
    : folding_(WrappingOf(text)) {
    document_.setUndoRedoEnabled(false);
    document_.setDocumentMargin(0);
    document_.setDefaultFont(font);
    document_.setPlainText(text);
}

double PlainTextLayout::Width() {
    document_.setDefaultTextOption(Unfolded(QTextOption::IncludeTrailingSpaces));
    return document_.idealWidth();
}

double PlainTextLayout::Height() {
    document_.setDefaultTextOption(Unfolded({}));
    return document_.size().height();
}

double PlainTextLayout::FoldedHeight(int width) {
    document_.setDefaultTextOption(folding_);
    document_.setTextWidth(width);
    return document_.size().height();
}

}  // namespace halvek
