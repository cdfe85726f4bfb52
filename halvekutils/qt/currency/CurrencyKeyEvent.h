// SPDX-License-Identifier: MIT
#pragma once

class QKeyEvent;

namespace halvek {

inline constexpr char16_t kBackspace = 8;

/// True for keys that a currency field ignores.
bool IsPassing(const QKeyEvent& event);

/// The character that a key types into a currency field, Backspace included; 0 for a command or an
/// editing key. Keys of the keypad type their digits with NumLock on or off.
char16_t AmountCharacterOf(const QKeyEvent& event);

}  // namespace halvek
