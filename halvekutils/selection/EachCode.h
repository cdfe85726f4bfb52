// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Characters.h>

#include <cstddef>
#include <string_view>

namespace halvek {

/// Calls `visit` with each piece between commas, without the blanks around it, until it returns
/// false.
template <class Visit>
void ForEachCode(std::u16string_view text, const Visit& visit) {
    while (true) {
        const std::size_t end = text.find(u',');
        if (!visit(Trimmed(text.substr(0, end))) || end == text.npos) return;
        text.remove_prefix(end + 1);
    }
}

}  // namespace halvek
