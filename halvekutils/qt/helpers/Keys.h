// SPDX-License-Identifier: MIT
#pragma once

#include <QKeyEvent>

namespace halvek {

/// The modifiers that make a key a command.
inline constexpr Qt::KeyboardModifiers kCommands =
    Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;

/// Enter, on the keypad or beside the letters.
inline bool IsEnter(const QKeyEvent& event) {
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

/// The character that a key types; 0 for an editing key, and with one of the `commands` held.
inline char16_t TypedBy(const QKeyEvent& event, Qt::KeyboardModifiers commands = kCommands) {
    const QString text = event.text();
    const bool types =
        !(event.modifiers() & commands) && text.size() == 1 && text.front().isPrint();
    return types ? text.front().unicode() : u'\0';
}

}  // namespace halvek
