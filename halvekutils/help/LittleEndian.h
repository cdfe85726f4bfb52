// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace halvek {

/// The little-endian number at a place in some bytes; nothing when it is not wholly within them.
template <class Number>
std::optional<Number> NumberAt(std::string_view bytes, std::uint64_t place) {
    if (place > bytes.size() || bytes.size() - place < sizeof(Number)) return std::nullopt;
    std::uint64_t value = 0;
    for (std::size_t i = sizeof(Number); i-- > 0;) {
        value = value << 8 | static_cast<unsigned char>(bytes[static_cast<std::size_t>(place) + i]);
    }
    return static_cast<Number>(value);
}

}  // namespace halvek
