// SPDX-License-Identifier: MIT
#include <halvekutils/dialogs/Calculator.h>
#include <halvekutils/qt/QtText.h>
#include <halvekutils/qt/forms/CalculatorKeys.h>
#include <halvekutils/qt/helpers/Keys.h>

#include <QApplication>
#include <QLineEdit>

#include <cstddef>

namespace halvek {

namespace {

/// The rules' code for a key; 0 for a key they do not know.
int KeyCodeOf(const QKeyEvent& key) {
    constexpr struct {
        Qt::Key key;
        int code;
    } kCodes[] = {
        {Qt::Key_Backspace, 8}, {Qt::Key_Escape, 27}, {Qt::Key_Delete, 46}, {Qt::Key_F9, 120}};
    for (const auto& row : kCodes) {
        if (key.key() == row.key) return row.code;
    }
    return 0;
}

/// Whether a line edit would put the key's text in, as it does with Alt and a letter.
bool WouldBeInserted(const QKeyEvent& key) {
    const bool isCommand =
        key.modifiers().testFlag(Qt::ControlModifier) && !key.modifiers().testFlag(Qt::AltModifier);
    return !isCommand && !key.text().isEmpty() && key.text()[0].category() != QChar::Other_Control;
}

}  // namespace

bool CalculatorKeys::Take(const QKeyEvent& key) {
    const bool pastes = key.matches(QKeySequence::Paste);
    // A key that is held down counts once, or never if it was down before the calculator opened.
    if (key.isAutoRepeat() && (pastes || !IsInBox())) return true;
    if (pastes) {
        Paste(QClipboard::Clipboard);
        return true;
    }
    if (key.matches(QKeySequence::Copy)) {
        Copy();
        return true;
    }
    if (IsEnter(key)) {
        if (!IsInBox()) rules_.Press(rules_.Focus());
        return true;
    }
    const char16_t digit = UnlockedDigitOf(key);
    const char16_t typed = digit != 0 ? digit : TypedIntoAmountBy(key);
    if (digit == 0 && rules_.KeyDown(KeyCodeOf(key))) return true;
    if (typed == 0) return WouldBeInserted(key);
    Type(typed);
    return true;
}

void CalculatorKeys::Type(char16_t character) {
    if (!rules_.KeyPress(character)) return;
    if (BoxIsFull()) return QApplication::beep();
    box_.insert(QChar(character));
}

bool CalculatorKeys::IsInBox() const {
    return rules_.Focus() == Calculator::kBox;
}

bool CalculatorKeys::BoxIsFull() const {
    const qsizetype kept = box_.text().size() - box_.selectedText().size();
    return kept >= static_cast<qsizetype>(Calculator::kMaxLength);
}

void CalculatorKeys::Copy() const {
    const std::u16string number = rules_.Copy();
    if (!number.empty()) QGuiApplication::clipboard()->setText(ToQString(number));
}

void CalculatorKeys::Paste(QClipboard::Mode mode) {
    const bool replaces = IsInBox() && box_.hasSelectedText();
    rules_.Paste(QGuiApplication::clipboard()->text(mode),
                 replaces ? static_cast<std::size_t>(box_.selectionStart()) : 0,
                 replaces ? static_cast<std::size_t>(box_.selectionLength()) : 0);
}

}  // namespace halvek
