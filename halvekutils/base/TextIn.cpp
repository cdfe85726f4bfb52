// SPDX-License-Identifier: MIT
#include <halvekutils/base/TextIn.h>
#include <halvekutils/base/Utf8.h>

#include <ostream>

namespace halvek {

void PrintTo(TextIn text, std::ostream* out) {
    *out << "u\"" << ToUtf8(text) << '"';
}

}  // namespace halvek
