// SPDX-License-Identifier: MIT
#include <halvekutils/base/Fetchable.h>

namespace halvek {

Fetchable::~Fetchable() = default;

}  // namespace halvek
