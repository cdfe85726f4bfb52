// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Compiler.h>

#include <utility>

namespace halvek {

/// An argument that a member may write back, given as a variable or as a plain value.
///
/// With a variable the caller sees what was written; with a value the write has no effect. Members
/// write it before they open a window, so the variable need not outlive a modal loop.
///
/// @code{.cpp}
/// FontSizeChoice size = FontSizeChoice(99);
/// utils->ShowMsgBox(u"Done", mbOkOnly, mbNoIcon, u"", mbWhite, size);  // size is now mb9
/// utils->ShowMsgBox(u"Done", mbOkOnly, mbNoIcon, u"", mbWhite, mb12);
/// @endcode
template <class T>
class ByRef {
  public:
    /// From a variable: Set writes it.
    ByRef(T& variable) : variable_(&variable), value_(variable) {}
    /// From a value: Set writes nothing that the caller sees.
    ByRef(T&& value) : value_(std::move(value)) {}
    ByRef(const T& value) : value_(value) {}

    /// What was given, or what Set wrote last.
    const T& Get() const { return value_; }

    /// Writes a value, to the variable too when there is one.
    void Set(T value) {
        value_ = std::move(value);
        if (variable_ != nullptr) *variable_ = value_;
    }

  private:
    T* variable_ = nullptr;
    T value_;
};

}  // namespace halvek
