// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Export.h>
#include <halvekutils/platform/Services.h>

namespace halvek {

/// The services of the one component state; usable at any time, current from the first InitUtils.
HALVEK_EXPORT Services& ComponentServices();

}  // namespace halvek
