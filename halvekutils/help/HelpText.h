// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Internal.h>
#include <halvekutils/base/TextIn.h>

#include <string>
#include <string_view>

namespace halvek {

/// A page or list of a compiled help file as text. It is UTF-8 when its first lines say so or it
/// starts with the byte-order mark, otherwise Windows-1252.
HALVEK_INTERNAL std::u16string HelpTextOf(std::string_view bytes);

/// The path of an object: UTF-8, or Windows-1252 when it is not well-formed UTF-8.
std::u16string HelpNameOf(std::string_view bytes);

/// A text with its character references, as in "&amp;" and "&#8364;", replaced.
std::u16string WithoutReferences(TextIn html);

}  // namespace halvek
