// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/CodePage.h>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace halvek {

/// The fuzzer's bytes as the server would send them.
inline std::u16string FuzzText(const std::uint8_t* data, std::size_t size) {
    return FromCodePage({reinterpret_cast<const char*>(data), size});
}

/// Ends the run, as a crash does, when something that must hold does not.
inline void Require(bool holds, const char* what) {
    if (holds) return;
    std::fprintf(stderr, "does not hold: %s\n", what);
    std::abort();
}

}  // namespace halvek
