// SPDX-License-Identifier: MIT
#pragma once

class QKeyEvent;

namespace halvek {

inline constexpr char16_t kBackspace = 8;

/// Keys that say nothing to a currency field.
bool IsPassing(const QKeyEvent& event);

/// The character that a key types into a currency field, Backspace included; 0 for a command or an
/// editing key. Keys of the keypad type what stands on them, whether numbers are locked or not.
char16_t AmountCharacterOf(const QKeyEvent& event);

}  // namespace halvek
