// SPDX-License-Identifier: MIT
#include "tests/faults/FailingAllocations.h"
#include "tests/qt/FormTest.h"

#include <sys/wait.h>
#include <unistd.h>

#include <iostream>
#include <map>

namespace halvek {
namespace {

struct QtOutOfMemory : FormTest {
    // What remains of a child that ends inside Qt
    ~QtOutOfMemory() override { std::filesystem::remove(machine_.ownFolder / "Error.Log"); }

    /// Plays a call in a process of its own, in which one allocation fails.
    /// @return  how it ended: the exit code, or minus the signal
    static int Play(const std::function<void()>& call, int allocations) {
        const pid_t child = fork();
        if (child == 0) {
            alarm(kHangs);
            std::freopen("/dev/null", "w", stderr);
            QTimer closes;
            QObject::connect(&closes, &QTimer::timeout, [] {
                if (QWidget* const dialog = QApplication::activeModalWidget()) dialog->close();
            });
            closes.start(0);
            bool haveFailed = false;
            {
                const FailingAllocations failing(allocations, Memory::MissingOnce);
                call();
                haveFailed = FailingAllocations::HaveFailed();
            }
            _exit(OpenDialog() != nullptr ? kLeftOpen : haveFailed ? kReturned : kNoneFailed);
        }
        int status = 0;
        waitpid(child, &status, 0);
        return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
    }

    static constexpr unsigned kHangs = 60;  // seconds
    static constexpr int kReturned = 0, kNoneFailed = 1, kLeftOpen = 2;
};

// Where Qt cannot throw, in destructors above all, the process ends. It never hangs, and no dialog
// stays open whose call has returned.
TEST_F(QtOutOfMemory, EveryDialogReturnsWhereverMemoryEnds) {
    utils_->InitPrefs(StringArray(1, {u"255", u"0", u"0", u"0"}), 0, 0, 0, 0);
    const std::function<void()> calls[] = {
        [&] { utils_->ShowMsgBox(u"?", mbOkCancel, mbNoIcon, u""); },
        [&] { utils_->Calculate(u"1"); },
        [&] { utils_->ShowCalendar(-1, -1, -1, u""); },
        [&] { utils_->ShowColor(); },
        [&] { utils_->ShowSelection(u"Codes", u"H:A\tAlpha\t0:", u""); },
    };
    const int step = qEnvironmentVariableIntValue("HALVEK_MEMORY_STEP");
    std::map<int, int> ends;
    for (const auto& call : calls) {
        int end = kReturned;
        for (int i = 0; end != kNoneFailed; i += step > 0 ? step : 97) {
            end = Play(call, i);
            ++ends[end];
            EXPECT_NE(end, -SIGALRM) << "hangs without allocation " << i;
            EXPECT_NE(end, kLeftOpen) << "stays open without allocation " << i;
        }
    }
    for (const auto& [end, times] : ends) std::cout << "end " << end << ": " << times << " times\n";
    EXPECT_GT(ends[kReturned], 10);
}

}  // namespace
}  // namespace halvek
