// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Internal.h>
#include <halvekutils/base/TextIn.h>

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace halvek {

/// Turns bytes of a character set, named as pages name it, into text; nothing when the set is
/// unknown. UTF-8, UTF-16, Latin-1 and Windows-1252 need none.
using HelpDecoder =
    std::function<std::optional<std::u16string>(std::string_view charset, std::string_view bytes)>;

/// A page or list of a compiled help file as text. Its byte-order mark names the character set, or
/// its first lines do; otherwise it is `charset`, and Windows-1252 when that is empty.
HALVEK_INTERNAL std::u16string HelpTextOf(std::string_view bytes, const HelpDecoder& decoder = {},
                                          std::string_view charset = {});

/// The path of an object: UTF-8, or Windows-1252 when it is not well-formed UTF-8.
std::u16string HelpNameOf(std::string_view bytes);

/// The character set that the compiler wrote a file of this language in, by the number that Windows
/// has for the language; empty for Windows-1252.
std::string_view HelpCharsetOf(std::uint32_t language);

/// A text with its character references, as in "&amp;" and "&#8364;", replaced.
HALVEK_INTERNAL std::u16string WithoutReferences(TextIn html);

/// A title as one line: without control characters and repeated blanks, at most 500 characters.
std::u16string HelpTitleOf(TextIn text);

}  // namespace halvek
