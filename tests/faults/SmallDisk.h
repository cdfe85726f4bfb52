// SPDX-License-Identifier: MIT
#pragma once

#include "tests/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <exception>
#include <filesystem>
#include <string>

namespace halvek {

/// A file system of two mebibytes in a folder, which only the process that mounts it sees and which
/// ends with it.
class SmallDisk {
  public:
    explicit SmallDisk(std::filesystem::path folder) : folder_(std::move(folder)) {}

    /// False without the right to mount, as in most containers.
    bool Mount() const {
        const std::string user = std::to_string(::geteuid());
        if (::unshare(CLONE_NEWNS) != 0) {
            if (::unshare(CLONE_NEWNS | CLONE_NEWUSER) != 0) return false;
            WriteFile("/proc/self/uid_map", "0 " + user + " 1");
        }
        return ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
               ::mount("tmpfs", folder_.c_str(), "tmpfs", 0, "size=2m") == 0;
    }

    void Fill() const {
        const int file = ::open(Filler().c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
        const std::string page(4096, 'f');
        while (::write(file, page.data(), page.size()) > 0) {
        }
        ::close(file);
    }
    void MakeRoom() const { std::filesystem::remove(Filler()); }

    void MakeReadOnly(bool readOnly) const {
        const unsigned long flags = MS_REMOUNT | (readOnly ? MS_RDONLY : 0);
        EXPECT_EQ(::mount(nullptr, folder_.c_str(), nullptr, flags, nullptr), 0);
    }

  private:
    std::filesystem::path Filler() const { return folder_ / "filler"; }

    std::filesystem::path folder_;
};

/// Runs a test's body with a small disk on the folder, in a process of its own. What the body
/// expects counts in the test, which is skipped where nothing may be mounted.
template <class Body>
void OnSmallDisk(const std::filesystem::path& folder, const Body& body) {
    constexpr int kNoRight = 77;
    std::fflush(nullptr);
    const pid_t child = ::fork();
    if (child == 0) {
        try {
            const SmallDisk disk(folder);
            if (!disk.Mount()) ::_exit(kNoRight);
            body(disk);
        } catch (const std::exception& caught) {
            ADD_FAILURE() << caught.what();
        }
        std::fflush(nullptr);
        ::_exit(::testing::Test::HasFailure() ? 1 : 0);
    }
    int status = -1;
    ::waitpid(child, &status, 0);
    if (WIFEXITED(status) && WEXITSTATUS(status) == kNoRight) {
        GTEST_SKIP() << "a file system can be mounted neither by this user nor in a user namespace";
    }
    EXPECT_EQ(status, 0) << "the process on the small disk failed";
}

}  // namespace halvek
