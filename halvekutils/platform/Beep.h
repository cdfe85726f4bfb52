// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Internal.h>

namespace halvek {

/// Sounds the beep of the installed desktop; silent without one. Never throws.
HALVEK_INTERNAL void Beep() noexcept;

}  // namespace halvek
