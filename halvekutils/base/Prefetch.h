// SPDX-License-Identifier: MIT
#pragma once

namespace halvek {

/// Asks for memory that is written to soon, so that it is in the cache by then.
inline void Prefetch([[maybe_unused]] const void* address) noexcept {
#ifdef __GNUC__
    __builtin_prefetch(address, 1);
#endif
}

}  // namespace halvek
