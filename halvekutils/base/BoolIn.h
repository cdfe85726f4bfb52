// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Compiler.h>

#include <type_traits>

namespace halvek {

/// A boolean argument that takes a bool and nothing else: a text, a number or a pointer, which
/// would silently become true, does not compile.
class BoolIn {
  public:
    /// The argument, from a bool only.
    template <class T>
    requires std::is_same_v<T, bool>
    constexpr BoolIn(T value) noexcept : value_(value) {}

    /// The value that was given.
    constexpr operator bool() const noexcept { return value_; }

  private:
    bool value_;
};

}  // namespace halvek
