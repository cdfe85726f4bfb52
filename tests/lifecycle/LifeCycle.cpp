// SPDX-License-Identifier: MIT
// What a process does with the library from outside: loading and unloading, forking, leaving.
#include "tests/TemporaryFolder.h"

#include <QApplication>
#include <gtest/gtest.h>

#include <dlfcn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdint>

namespace halvek {
namespace {

class LifeCycle : public ::testing::Test {
  protected:
    /// A function of the plugin.
    template <class Function>
    Function* Get(const char* name) {
        return reinterpret_cast<Function*>(::dlsym(plugin_, name));
    }
    void Load() {
        plugin_ = ::dlopen(HALVEK_PLUGIN, RTLD_NOW | RTLD_LOCAL);
        ASSERT_NE(plugin_, nullptr) << ::dlerror();
    }
    void Unload() { ASSERT_EQ(::dlclose(plugin_), 0); }

    /// What has been logged, without time and user
    std::string Messages() const {
        std::istringstream log(ReadFile(folder_ / "a.log"));
        std::string time, user, message, messages;
        while (std::getline(log, time, '\t') && std::getline(log, user, '\t') &&
               std::getline(log, message, '\r')) {
            messages += message + '|';
        }
        return messages;
    }

    TemporaryFolder folder_;
    const std::u16string log_ = (folder_ / "a.log").u16string();
    void* plugin_ = nullptr;
};

TEST_F(LifeCycle, APluginShowsItsBoxEachTimeItIsLoaded) {
    for (int round = 0; round < 3; ++round) {
        Load();
        EXPECT_EQ(Get<std::int32_t(const char16_t*)>("ShowBox")(log_.c_str()), 2);
        Get<void(const char16_t*, const char16_t*)>("Log")(log_.c_str(), u"loaded");
        Unload();
        QApplication::processEvents();
    }
    EXPECT_EQ(Messages(), "loaded|loaded|loaded|");
    EXPECT_EQ(::dlopen("libcups.so.2", RTLD_NOW | RTLD_NOLOAD), nullptr)
        << "a client that prints nothing pays for libcups";
}

TEST_F(LifeCycle, AForkedChildLogsAndItsParentGoesOn) {
    Load();
    const auto log = Get<void(const char16_t*, const char16_t*)>("Log");
    log(log_.c_str(), u"before");
    const pid_t child = ::fork();
    if (child == 0) {
        log(log_.c_str(), u"child");
        ::_exit(0);
    }
    int status = -1;
    ::waitpid(child, &status, 0);
    EXPECT_EQ(status, 0);
    EXPECT_EQ(Get<std::int32_t(const char16_t*)>("ShowBox")(log_.c_str()), 2);
    log(log_.c_str(), u"parent");
    EXPECT_EQ(Messages(), "before|child|parent|");
}

TEST_F(LifeCycle, AProcessThatExitsInsideABoxEndsCleanlyAndStillLogs) {
    Load();
    const auto exitInBox = Get<void(const char16_t*)>("ExitInBox");
    // A sanitizer with something to report would exit with another code.
    EXPECT_EXIT(exitInBox(log_.c_str()), ::testing::ExitedWithCode(3), "");
    EXPECT_EQ(Messages(), "the last word|");
}

}  // namespace
}  // namespace halvek
