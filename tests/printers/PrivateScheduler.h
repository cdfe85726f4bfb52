// SPDX-License-Identifier: MIT
#pragma once

#include "tests/TemporaryFolder.h"

#include <signal.h>
#include <spawn.h>
#include <sys/types.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <stdexcept>
#include <string>
#include <vector>

namespace halvek {

/// A print scheduler in a temporary folder, with queues Queue1, Queue2, ...: Queue2 is an ipp
/// printer with a driver, the others are raw and print to /dev/null. Ends with the scope.
class PrivateScheduler {
  public:
    explicit PrivateScheduler(int queues) : pid_(Start({"start", folder_.Path()})) {
        if (Wait(Start({"queues", folder_.Path(), std::to_string(queues)})) == 0) return;
        End();
        throw std::runtime_error("the queues cannot be set up");
    }
    ~PrivateScheduler() { End(); }
    PrivateScheduler(const PrivateScheduler&) = delete;
    PrivateScheduler& operator=(const PrivateScheduler&) = delete;

    std::string Socket() const { return folder_ / "socket"; }

    void Stop() const { ::kill(pid_, SIGSTOP); }
    void Continue() const { ::kill(pid_, SIGCONT); }

  private:
    static pid_t Start(std::vector<std::string> arguments) {
        arguments.insert(arguments.begin(), {"bash", HALVEK_SCHEDULER});
        std::vector<char*> words;
        words.reserve(arguments.size() + 1);
        for (std::string& argument : arguments) words.push_back(argument.data());
        words.push_back(nullptr);
        pid_t child = 0;
        if (::posix_spawnp(&child, "bash", nullptr, nullptr, words.data(), environ) != 0) {
            throw std::runtime_error("bash cannot be started");
        }
        return child;
    }

    static int Wait(pid_t child) {
        int status = -1;
        while (::waitpid(child, &status, 0) < 0 && errno == EINTR) {
        }
        return status;
    }

    void End() const {
        Continue();
        ::kill(pid_, SIGTERM);
        Wait(pid_);
    }

    TemporaryFolder folder_;
    pid_t pid_;
};

}  // namespace halvek
