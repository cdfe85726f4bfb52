// SPDX-License-Identifier: MIT
#pragma once

#include "fuzz/FuzzTarget.h"

namespace halvek {

/// A file with some of its bytes replaced, and perhaps cut off.
inline std::string Damaged(std::string file, FuzzedDataProvider& input) {
    const bool isCut = input.ConsumeBool();
    const std::size_t parts = input.ConsumeIntegral<std::uint8_t>();
    while (input.remaining_bytes() > 0) {
        const auto at = input.ConsumeIntegralInRange<std::size_t>(0, file.size() - 1);
        const std::string bytes =
            input.ConsumeBytesAsString(input.ConsumeIntegralInRange<std::size_t>(1, 8));
        file.replace(at, bytes.size(), bytes);
    }
    if (isCut) file.resize(file.size() * parts / 255);
    return file;
}

}  // namespace halvek
