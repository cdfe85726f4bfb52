// SPDX-License-Identifier: MIT
#include <halvekutils/qt/currency/CurrencyKeyEvent.h>
#include <halvekutils/qt/helpers/Keys.h>

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

char16_t AmountCharacterOf(const QKeyEvent& event) {
    constexpr Qt::KeyboardModifiers kNoTyping = Qt::ControlModifier | Qt::MetaModifier;
    if (event.key() == Qt::Key_Backspace && !(event.modifiers() & kNoTyping)) return kBackspace;
    const char16_t typed = TypedIntoAmountBy(event, kNoTyping);
    return typed != 0 ? typed : UnlockedDigitOf(event);
}

}  // namespace halvek
