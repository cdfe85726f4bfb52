// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Export.h>

namespace halvek {

/// Sounds the beep of the installed desktop; silent without one. Never throws.
HALVEK_EXPORT void Beep() noexcept;

}  // namespace halvek
