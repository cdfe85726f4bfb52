// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace halvek {

/// Appends text of a page, in HTML, without what the text layout chokes on: control characters, the
/// layout's own marks, more than 16 combining characters in a row. Numbered references become
/// characters.
/// @param marks  how many combining characters in a row there are so far
void AppendHelpText(std::u16string& html, std::u16string_view text, int& marks);

}  // namespace halvek
