// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Export.h>
#include <halvekutils/base/TextIn.h>

#include <cstdint>
#include <string>
#include <string_view>

namespace halvek {

/// Windows-1252, the code page of the server's texts and of the log files.
///
/// Its five unassigned codes stand for the control characters of the same number, so every byte
/// survives the round trip. A character that the page lacks becomes the code of "?".

/// The code of a character, 0 to 255.
HALVEK_EXPORT std::uint8_t CodeOf(char16_t character) noexcept;

/// The character of a code.
HALVEK_EXPORT char16_t CharacterOf(std::uint8_t code) noexcept;

/// The text as bytes of the code page, one byte a character.
HALVEK_EXPORT std::string ToCodePage(TextIn text);

/// Bytes of the code page as text.
HALVEK_EXPORT std::u16string FromCodePage(std::string_view bytes);

}  // namespace halvek
