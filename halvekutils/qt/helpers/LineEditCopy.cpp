// SPDX-License-Identifier: MIT
#include <halvekutils/qt/helpers/LineEditCopy.h>

#include <algorithm>

namespace halvek {

int CaretOf(const QLineEdit& line) {
    return line.hasSelectedText() ? line.selectionStart() : line.cursorPosition();
}

std::shared_ptr<TextField> CopyOf(const QLineEdit& line) {
    auto field = std::make_shared<TextField>(line.text(), CaretOf(line), line.selectionLength());
    field->Locked(line.isReadOnly());
    return field;
}

void Select(QLineEdit& line, int start, int length) {
    if (length > 0) {
        line.setSelection(start, length);
    } else {
        line.setCursorPosition(start);
    }
}

void SetText(QLineEdit& line, const QString& text) {
    if (line.maxLength() < text.size()) line.setMaxLength(static_cast<int>(text.size()));
    line.setText(text);
}

void Edit(QLineEdit& line, const QString& text) {
    const QString before = line.text();
    const auto [was, is] = std::mismatch(before.begin(), before.end(), text.begin(), text.end());
    const auto start = was - before.begin();
    const qsizetype shorter = std::min(before.size(), text.size()) - start;
    qsizetype same = 0;
    while (same < shorter && before[before.size() - 1 - same] == text[text.size() - 1 - same]) {
        ++same;
    }
    Select(line, static_cast<int>(start), static_cast<int>(before.size() - start - same));
    const QString inserted = text.mid(start, text.size() - start - same);
    if (inserted.isEmpty()) {
        line.del();
    } else {
        line.insert(inserted);
    }
}

}  // namespace halvek
