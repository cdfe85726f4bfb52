// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace check {

/// How the bytes of a file stand for characters.
enum class Encoding { Windows1252, Utf8 };

/// The text of a file, or of the standard input for "-".
///
/// One line break at the end is an editor's and not part of the text. Throws std::runtime_error
/// when the file cannot be read or is not in the encoding.
std::u16string ReadText(const std::string& file, Encoding encoding);

}  // namespace check
