// SPDX-License-Identifier: MIT
#include <halvekutils/qt/forms/DebugTextView.h>
#include <halvekutils/qt/helpers/FieldOutline.h>
#include <halvekutils/qt/helpers/InputMethodRefusal.h>
#include <halvekutils/qt/helpers/Metrics.h>

#include <QTextCursor>

#include <string_view>

namespace halvek {

namespace {

/// Qt lays out a line as a whole: a line of megabytes would freeze the program.
constexpr int kMaxLineLength = 1000;
constexpr std::size_t kMaxAddition = 1'000'000;

bool EndsLine(char16_t character) {
    return character == u'\r' || character == u'\n';
}

bool IsControl(char16_t character) {
    return character < u' ' && !EndsLine(character) && character != u'\t';
}

/// The text with control characters as their codes, as in "<27>", and very long lines cut.
QString Shown(std::u16string_view text) {
    const auto size = static_cast<qsizetype>(text.size());
    QString shown;
    shown.reserve(size + size / kMaxLineLength);
    int length = 0;
    for (const char16_t character : text) {
        const bool endsLine = EndsLine(character);
        if (!endsLine && length >= kMaxLineLength && !QChar::isLowSurrogate(character)) {
            shown += QLatin1Char('\n');
            length = 0;
        }
        length = endsLine ? 0 : length + 1;
        if (IsControl(character)) {
            shown += QStringLiteral("<%1>").arg(static_cast<int>(character));
        } else {
            shown += QChar(character);
        }
    }
    return shown;
}

/// What is shown of text that is added, which may hold megabytes.
QString ShownOf(std::u16string_view added) {
    if (added.size() <= kMaxAddition) return Shown(added);
    return Shown(added.substr(0, kMaxAddition)) +
           QStringLiteral("\n... (%1 more characters)\n").arg(added.size() - kMaxAddition);
}

}  // namespace

DebugTextView::DebugTextView(const DebugConsole& console, QWidget* parent)
    : QPlainTextEdit(parent), console_(console) {
    setObjectName(QLatin1String("txtDebug"));
    setAccessibleName(tr("Debug lines"));
    new FieldOutline(*this);
    setFont(ToQFont({u"Courier New", 0}));
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setTabChangesFocus(true);
    setUndoRedoEnabled(false);
    new InputMethodRefusal(*this);
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
}

void DebugTextView::Refresh() {
    if (replacements_ == console_.Replacements() && shown_ == console_.Text().size()) return;
    ShowText();
    repaint();
}

void DebugTextView::ShowText() {
    if (replacements_ != console_.Replacements()) {
        clear();
        shown_ = 0;
        replacements_ = console_.Replacements();
    }
    const std::u16string_view text = console_.Text();
    QTextCursor end(document());
    end.movePosition(QTextCursor::End);
    end.insertText(ShownOf(text.substr(shown_)));
    shown_ = text.size();
    if (!textCursor().hasSelection()) moveCursor(QTextCursor::End);
}

}  // namespace halvek
