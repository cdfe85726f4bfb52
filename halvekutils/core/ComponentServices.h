// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/platform/Services.h>

namespace halvek {

/// The services of the one component state; usable at any time, current from the first InitUtils.
Services& ComponentServices();

}  // namespace halvek
