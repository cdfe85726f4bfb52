// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Export.h>
#include <halvekutils/base/TextIn.h>

#include <string>
#include <string_view>

namespace halvek {

/// The text as UTF-8; a surrogate without its partner becomes U+FFFD.
HALVEK_EXPORT std::string ToUtf8(TextIn text);

/// UTF-8 as text; every byte outside a well-formed sequence becomes U+FFFD.
HALVEK_EXPORT std::u16string FromUtf8(std::string_view bytes);

}  // namespace halvek
