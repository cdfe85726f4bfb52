// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <string>
#include <thread>

namespace frontdesk {

/// Ends the program with a message when a step takes too long, even if the user-interface thread
/// hangs.
class Watchdog {
  public:
    explicit Watchdog(std::chrono::seconds patience);
    ~Watchdog();
    Watchdog(const Watchdog&) = delete;
    Watchdog& operator=(const Watchdog&) = delete;

    /// The previous step is done; this one begins.
    void Begin(const std::string& step);

  private:
    void Watch(const std::stop_token& stop);

    const std::chrono::seconds patience_;
    std::mutex mutex_;
    std::condition_variable_any changed_;
    std::string step_ = "the start";
    unsigned steps_ = 0;
    std::jthread thread_;
};

}  // namespace frontdesk
