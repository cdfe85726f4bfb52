// SPDX-License-Identifier: MIT
#include <halvekutils/platform/Machine.h>

#include <thread>

namespace halvek {

Machine::~Machine() = default;

void Machine::Sleep(std::chrono::milliseconds time) {
    std::this_thread::sleep_for(time);
}

bool Machine::TryExclusive(const std::filesystem::path& /*file*/,
                           const std::function<void()>& action) {
    action();
    return true;
}

}  // namespace halvek
