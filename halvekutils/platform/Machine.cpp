// SPDX-License-Identifier: MIT
#include <halvekutils/platform/Machine.h>

#include <thread>

namespace halvek {

Machine::~Machine() = default;

void Machine::Sleep(std::chrono::milliseconds time) {
    std::this_thread::sleep_for(time);
}

}  // namespace halvek
