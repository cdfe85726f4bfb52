// SPDX-License-Identifier: MIT
#include "tests/LogTest.h"

#include <fcntl.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>

namespace halvek {
namespace {

namespace fs = std::filesystem;

/// A file system of two mebibytes in a folder; only the process that mounts it sees it, and it ends
/// with that process.
class SmallDisk {
  public:
    explicit SmallDisk(fs::path folder) : folder_(std::move(folder)) {}

    /// False without the right to mount, as in most containers.
    bool Mount() const {
        const std::string user = std::to_string(::geteuid());
        const std::string group = std::to_string(::getegid());
        if (::unshare(CLONE_NEWNS) != 0) {
            if (::unshare(CLONE_NEWNS | CLONE_NEWUSER) != 0) return false;
            WriteFile("/proc/self/uid_map", "0 " + user + " 1");
            WriteFile("/proc/self/setgroups", "deny");
            WriteFile("/proc/self/gid_map", "0 " + group + " 1");
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
    void MakeRoom() const { fs::remove(Filler()); }

    void MakeReadOnly(bool readOnly) const {
        const unsigned long flags = MS_REMOUNT | (readOnly ? MS_RDONLY : 0);
        EXPECT_EQ(::mount(nullptr, folder_.c_str(), nullptr, flags, nullptr), 0);
    }

  private:
    fs::path Filler() const { return folder_ / "filler"; }

    fs::path folder_;
};

/// Runs a test's body with a small disk on the folder, in a separate process. Its failed
/// expectations fail the test, which is skipped where mounting is not allowed.
template <class Body>
void OnSmallDisk(const fs::path& folder, const Body& body) {
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

using LogFaults = LogTest;

TEST_F(LogFaults, AFullDiskLosesWholeLinesAndOnlyThoseEvenInARotation) {
    OnSmallDisk(folder_.Path(), [&](const SmallDisk& disk) {
        WriteFile(log_, "old\r\n");
        Start(log_, true);
        disk.Fill();
        const std::string acrossPages(6000, 'l');
        EXPECT_EQ(BeepsAt("fits behind it"), 0);
        EXPECT_EQ(BeepsAt(acrossPages), 1);
        EXPECT_EQ(ToUtf8(desktop_.StockMessages().back().text),
                  "ERROR in LocalRef.LogError\r\nDisk full: " + log_.native());
        EXPECT_EQ(BeepsAt("fits too"), 0);
        EXPECT_EQ(ReadFile(log_), "old\r\n" + Line("fits behind it") + Line("fits too"));
        disk.MakeRoom();
        EXPECT_EQ(BeepsAt(acrossPages), 0);
        EXPECT_TRUE(ReadFile(log_).ends_with(Line("fits too") + Line(acrossPages)));

        WriteFile(log_, kFull);
        disk.Fill();
        EXPECT_EQ(BeepsAt("lost"), 1);
        disk.MakeRoom();
        EXPECT_EQ(BeepsAt("next"), 0);
        EXPECT_EQ(ReadFile(log_), Line("next"));
        EXPECT_EQ(NamesIn(folder_.Path()), (Names{"a.log", kArchive}));
        EXPECT_TRUE(ReadFile(folder_ / kArchive) == kFull);
    });
}

TEST_F(LogFaults, AReadOnlyDiskStaysAsItIs) {
    OnSmallDisk(folder_.Path(), [&](const SmallDisk& disk) {
        WriteFile(log_, kFull);
        WriteFile(folder_ / "error_1.log", "an archive");
        Start(log_);
        disk.MakeReadOnly(true);
        EXPECT_EQ(BeepsAt("lost"), 2) << "for the clean-up and for the line";
        EXPECT_TRUE(ReadFile(log_) == kFull);
        EXPECT_EQ(NamesIn(folder_.Path()), (Names{"a.log", "error_1.log"}));
        disk.MakeReadOnly(false);
        EXPECT_EQ(BeepsAt("next"), 0);
        EXPECT_EQ(ReadFile(log_), Line("next"));
        EXPECT_EQ(NamesIn(folder_.Path()), (Names{"a.log", kArchive}));
    });
}

TEST_F(LogFaults, OnlyItsOwnFolderIsMadeAnewWhenItGoesWhileTheHostRuns) {
    const std::pair<fs::path, fs::path> rows[] = {
        {folder_ / "logs/a.log", folder_ / "logs/a.log"},
        {"own.log", machine_.ownFolder / "own.log"},
    };
    fs::create_directory(folder_ / "logs");
    for (const auto& [name, file] : rows) {
        const bool own = name != file;
        TheSession().logFolder.clear();
        Start(name, true);
        EXPECT_EQ(BeepsAt("1"), 0);
        fs::remove_all(file.parent_path());
        EXPECT_EQ(BeepsAt("2"), own ? 0 : 1) << name;
        EXPECT_EQ(fs::exists(file.parent_path()), own) << name;
        fs::create_directories(file.parent_path());
        EXPECT_EQ(BeepsAt("3"), 0);
        EXPECT_EQ(ReadFile(file), (own ? Line("2") : "") + Line("3")) << name;
    }
    ASSERT_EQ(desktop_.StockMessages().size(), 1u) << "in debug mode a lost line is told";
    EXPECT_EQ(ToUtf8(desktop_.StockMessages().front().text),
              "ERROR in LocalRef.LogError\r\nPath not found: " + rows[0].second.native());
}

}  // namespace
}  // namespace halvek
