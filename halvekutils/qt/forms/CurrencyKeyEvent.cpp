// SPDX-License-Identifier: MIT
#include <halvekutils/qt/forms/CurrencyKeyEvent.h>

#include <QKeyEvent>

namespace halvek {

bool IsPassing(const QKeyEvent& event) {
    switch (event.key()) {
        case Qt::Key_Tab:
        case Qt::Key_Backtab:
        case Qt::Key_Escape:
        case Qt::Key_Shift:
        case Qt::Key_Control:
        case Qt::Key_Alt:
        case Qt::Key_AltGr:
        case Qt::Key_Meta:
        case Qt::Key_CapsLock:
        case Qt::Key_NumLock:
            return true;
        default:
            return false;
    }
}

bool IsEnter(const QKeyEvent& event) {
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

char16_t TypedBy(const QKeyEvent& event) {
    if (event.modifiers() & (Qt::ControlModifier | Qt::MetaModifier)) return 0;
    if (event.key() == Qt::Key_Backspace) return kBackspace;
    if (event.text().size() != 1 || !event.text().front().isPrint()) return 0;
    const char16_t letter = event.text().front().unicode();
    // Where people write decimal commas the keypad has one instead of the point.
    const bool isKeypadComma = letter == u',' && event.modifiers() & Qt::KeypadModifier;
    return isKeypadComma ? u'.' : letter;
}

}  // namespace halvek
