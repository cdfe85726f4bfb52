// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/RuntimeError.h>
#include <halvekutils/base/TextIn.h>

namespace halvek {

/// What a pointer of any kind points to. Throws ObjectNotSet for null, and for a guarded pointer
/// whose object was destroyed.
template <class Pointer>
auto& Existing(const Pointer& object, TextIn what) {
    if (object == nullptr) throw RuntimeError(Fault::ObjectNotSet, what);
    return *object;
}

}  // namespace halvek
