// SPDX-License-Identifier: MIT
#include "tests/FaultOf.h"
#include "tests/TemporaryFolder.h"
#include "tests/TestMachine.h"

#include <halvekutils/base/Utf8.h>
#include <halvekutils/system/LocalMachine.h>

#include <gtest/gtest.h>

#include <fcntl.h>
#include <pwd.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace halvek {
namespace {

namespace fs = std::filesystem;

using Names = std::set<std::string>;

constexpr int kUnavailable = 255;

/// The action's result in a separate process, which may give up its rights.
int InChild(const std::function<int()>& action) noexcept {
    const pid_t child = ::fork();
    if (child == 0) ::_exit(action());
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

/// The permission bits as chmod takes them.
unsigned ModeOf(const fs::path& file) {
    return static_cast<unsigned>(fs::symlink_status(file).permissions());
}

class LocalMachineFiles : public ::testing::Test {
  protected:
    std::int32_t Append(const fs::path& file, std::string_view bytes) {
        return FaultOf([&] { machine_.Append(file, bytes); });
    }

    TemporaryFolder folder_;
    LocalMachine machine_;
};

TEST_F(LocalMachineFiles, AppendRefusesAllButRegularFilesInExistingFolders) {
    WriteFile(folder_ / "target", "kept");
    fs::create_symlink("target", folder_ / "link");
    fs::create_symlink("nowhere", folder_ / "dangling");
    fs::create_directory(folder_ / "folder");
    ::mkfifo((folder_ / "pipe").c_str(), 0600);
    ::mkfifo((folder_ / "read pipe").c_str(), 0600);
    const int reader = ::open((folder_ / "read pipe").c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    const std::size_t openFiles = NamesIn("/proc/self/fd").size();
    const std::pair<std::string, int> rows[] = {
        {"link", 70},         {"dangling", 70},      {"folder", 70},
        {"read pipe", 70},    {"/dev/null", 70},     {"pipe", 57},
        {"target/x.log", 76}, {"missing/x.log", 76}, {std::string(300, 'n'), 76}};
    for (const auto& [name, fault] : rows) {
        EXPECT_FALSE(machine_.TryAppend(folder_ / name, "x", 9999)) << name;
        EXPECT_EQ(Append(folder_ / name, "x"), fault) << name;
    }
    EXPECT_EQ(NamesIn("/proc/self/fd").size(), openFiles);
    ::close(reader);
    EXPECT_EQ(ReadFile(folder_ / "target"), "kept");
    EXPECT_EQ(NamesIn(folder_.Path()),
              (Names{"dangling", "folder", "link", "pipe", "read pipe", "target"}));
}

TEST_F(LocalMachineFiles, CreatesItsOwnFolderAndNoOtherForTheOwnerAlone) {
    TestMachine machine(folder_ / "home/state/own");
    EXPECT_EQ(FaultOf([&] { machine.Append(machine.ownFolder / "sub/a.log", "x"); }), 76);
    EXPECT_FALSE(fs::exists(folder_ / "home"));

    const mode_t before = ::umask(0);
    machine.Append(machine.ownFolder / "a.log", "one ");
    machine.Append(machine.ownFolder / "a.log", std::string_view("two\0", 4));
    ::umask(before);
    EXPECT_EQ(ReadFile(machine.ownFolder / "a.log"), std::string_view("one two\0", 8));
    EXPECT_EQ(ModeOf(machine.ownFolder / "a.log"), 0600u);
    for (const char* made : {"home", "home/state", "home/state/own"}) {
        EXPECT_EQ(ModeOf(folder_ / made), 0700u) << made;
    }
}

TEST_F(LocalMachineFiles, TakesTheUserFromThePasswordDatabaseAndNotTheEnvironment) {
    const passwd* const entry = ::getpwuid(::geteuid());
    if (entry == nullptr) GTEST_SKIP() << "this user has no entry in the password database";
    const int right = InChild([&] {
        for (const char* name : {"HOME", "LOGNAME", "USER", "XDG_STATE_HOME"}) {
            ::setenv(name, "/elsewhere", 1);
        }
        return machine_.LoginName() == FromUtf8(entry->pw_name) &&
               machine_.OwnFolder() == fs::path(entry->pw_dir) / ".local/state/HalvekUtils";
    });
    EXPECT_EQ(right, 1);
}

TEST_F(LocalMachineFiles, MakeWritableAddsTheOwnersRightAndNoOther) {
    const fs::path file = folder_ / "a.log";
    WriteFile(file, "12345");
    for (const mode_t mode : {0444u, 0000u, 0640u, 04555u}) {
        ::chmod(file.c_str(), mode);
        EXPECT_EQ(machine_.StateOf(file).writable, (mode & 0200u) != 0) << mode;
        machine_.MakeWritable(file);
        EXPECT_EQ(ModeOf(file), mode | 0200u);
    }
    EXPECT_EQ(machine_.StateOf(file).length, 5u);

    ::chmod(file.c_str(), 0400);
    fs::create_symlink("a.log", folder_ / "link");
    EXPECT_EQ(FaultOf([&] { machine_.MakeWritable(folder_ / "link"); }), 70);
    EXPECT_EQ(ModeOf(file), 0400u);
}

TEST_F(LocalMachineFiles, APlantedLogIsRefusedWhereOthersCanWrite) {
    const fs::path file = folder_ / "a.log";
    bool owned = false;  // only the superuser gives files away
    const std::pair<const char*, std::function<void()>> plants[] = {
        {"a second name", [&] { fs::create_hard_link(file, folder_ / "b.log"); }},
        {"another owner", [&] { owned = ::chown(file.c_str(), 65534, 65534) != 0; }},
    };
    for (const auto& [what, plant] : plants) {
        WriteFile(file, "kept");
        plant();
        if (owned) continue;
        for (const mode_t mode : {0777u, 01777u, 0775u}) {
            ::chmod(folder_.Path().c_str(), mode);
            EXPECT_EQ(Append(file, "x"), 70) << what;
            EXPECT_FALSE(machine_.TryAppend(file, "x", 9999)) << what;
            EXPECT_EQ(FaultOf([&] { machine_.MakeWritable(file); }), 70) << what;
        }
        EXPECT_EQ(ReadFile(file), "kept") << what;
        ::chmod(folder_.Path().c_str(), 0755);
        EXPECT_EQ(Append(file, "x"), 0) << what;
        fs::remove(file);
        fs::remove(folder_ / "b.log");
    }
}

TEST_F(LocalMachineFiles, AFullDiskTakesWholeLinesOnly) {
    const int fault = InChild([&] {
        const rlimit limit{4096, 4096};
        ::signal(SIGXFSZ, SIG_IGN);
        if (::setrlimit(RLIMIT_FSIZE, &limit) != 0) return kUnavailable;
        const std::string half(5000, 'x');
        Append(folder_ / "a.log", "old ");
        const int first = FaultOf([&] { machine_.TryAppend(folder_ / "a.log", half, 9999); });
        const int second = Append(folder_ / "a.log", half);
        Append(folder_ / "a.log", "fits");
        return first == second ? first : kUnavailable;
    });
    EXPECT_EQ(fault, 61);
    EXPECT_EQ(ReadFile(folder_ / "a.log"), "old fits");
}

TEST_F(LocalMachineFiles, ReportsMissingRightsOnAFolder) {
    WriteFile(folder_ / "a.log", "x");
    ::chmod((folder_ / "a.log").c_str(), 0666);
    ::chmod(folder_.Path().c_str(), 0555);
    // The superuser ignores permissions, so an unprivileged user performs the action, inside the
    // folder.
    const auto unprivileged = [&](const std::function<void()>& action) {
        return InChild([&] {
            const bool ready =
                ::chdir(folder_.Path().c_str()) == 0 && (::geteuid() != 0 || ::setuid(65534) == 0);
            return ready ? FaultOf(action) : kUnavailable;
        });
    };
    EXPECT_EQ(unprivileged([&] { machine_.Append("a.log", "y"); }), 0);
    EXPECT_EQ(unprivileged([&] { machine_.Append("new.log", "y"); }), 70);
    EXPECT_EQ(unprivileged([&] { machine_.Rename("a.log", "b.log"); }), 70);
    EXPECT_EQ(unprivileged([&] { machine_.Delete("a.log"); }), 70);
}

}  // namespace
}  // namespace halvek
