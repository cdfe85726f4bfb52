// SPDX-License-Identifier: MIT
#pragma once

#include "tests/TemporaryFolder.h"

#include <cstdio>
#include <cstdlib>

namespace halvek {

/// A print scheduler in a temporary folder, with queues Queue1, Queue2, ...: Queue2 is an ipp
/// printer with a driver, the others are raw and print to /dev/null. It ends when this end of its
/// pipe is closed, by the scope or with the process.
class PrivateScheduler {
  public:
    explicit PrivateScheduler(int queues) : pipe_(::popen(Command("start").c_str(), "we")) {
        if (std::system(Command("queues " + std::to_string(queues)).c_str()) == 0) return;
        ::pclose(pipe_);
        throw std::runtime_error("the queues cannot be set up");
    }
    ~PrivateScheduler() { ::pclose(pipe_); }
    PrivateScheduler(const PrivateScheduler&) = delete;
    PrivateScheduler& operator=(const PrivateScheduler&) = delete;

    std::string Socket() const { return folder_ / "socket"; }

  private:
    std::string Command(const std::string& words) const {
        return "bash " HALVEK_SCHEDULER " " + folder_.Path().string() + ' ' + words;
    }

    TemporaryFolder folder_;
    std::FILE* pipe_;
};

}  // namespace halvek
