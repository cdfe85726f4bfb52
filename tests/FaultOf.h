// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/RuntimeError.h>

namespace halvek {

/// The number of the fault that the action throws; 0 when it throws none.
template <class Action>
std::int32_t FaultOf(const Action& action) {
    try {
        action();
    } catch (const RuntimeError& fault) {
        return fault.Number();
    }
    return 0;
}

}  // namespace halvek
