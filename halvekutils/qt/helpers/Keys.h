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

/// The character that a key types into an amount. Where people write decimal commas the keypad has
/// a comma instead of the point, which counts as a point.
inline char16_t TypedIntoAmountBy(const QKeyEvent& event,
                                  Qt::KeyboardModifiers commands = kCommands) {
    const char16_t typed = TypedBy(event, commands);
    const bool isKeypadComma = typed == u',' && event.modifiers() & Qt::KeypadModifier;
    return isKeypadComma ? u'.' : typed;
}

/// The digit or point on a key of the keypad that moves the caret because NumLock is off; 0 for any
/// other key, and with Shift or a command held.
inline char16_t UnlockedDigitOf(const QKeyEvent& event) {
    constexpr struct {
        Qt::Key key;
        char16_t character;
    } kKeypad[] = {
        {Qt::Key_Home, u'7'},   {Qt::Key_Up, u'8'},     {Qt::Key_PageUp, u'9'},
        {Qt::Key_Left, u'4'},   {Qt::Key_Clear, u'5'},  {Qt::Key_Right, u'6'},
        {Qt::Key_End, u'1'},    {Qt::Key_Down, u'2'},   {Qt::Key_PageDown, u'3'},
        {Qt::Key_Insert, u'0'}, {Qt::Key_Delete, u'.'},
    };
    if (event.modifiers() != Qt::KeypadModifier) return 0;
    for (const auto& [key, character] : kKeypad) {
        if (event.key() == key) return character;
    }
    return 0;
}

}  // namespace halvek
