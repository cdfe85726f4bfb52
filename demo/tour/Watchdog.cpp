// SPDX-License-Identifier: MIT
#include "tour/Watchdog.h"

#include <cstdio>
#include <cstdlib>

namespace frontdesk {

Watchdog::Watchdog(std::chrono::seconds patience)
    : patience_(patience), thread_([this](const std::stop_token& stop) { Watch(stop); }) {}

Watchdog::~Watchdog() = default;

void Watchdog::Begin(const std::string& step) {
    const std::lock_guard lock(mutex_);
    step_ = step;
    ++steps_;
    changed_.notify_all();
}

void Watchdog::Watch(const std::stop_token& stop) {
    std::unique_lock lock(mutex_);
    while (!stop.stop_requested()) {
        const unsigned watched = steps_;
        const bool moved =
            changed_.wait_for(lock, stop, patience_, [&] { return steps_ != watched; });
        if (moved || stop.stop_requested()) continue;
        std::fprintf(stderr, "The tour hangs in \"%s\".\n", step_.c_str());
        std::_Exit(EXIT_FAILURE);
    }
}

}  // namespace frontdesk
