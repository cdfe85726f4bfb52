// SPDX-License-Identifier: MIT
#include "tests/CleanState.h"

#include <halvekutils/base/CodePage.h>
#include <halvekutils/base/Utf8.h>

#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <cstddef>
#include <filesystem>
#include <set>
#include <sstream>
#include <string>
#include <string_view>

namespace halvek {
namespace {

namespace fs = std::filesystem;

using Names = std::set<std::string>;

const std::string kFull(1'048'576, 'x');
constexpr std::string_view kStampAndUser = "03/05/24 09:07:03 AM\tnina\t";
constexpr char kArchive[] = "Error_2024_3_5_9_7_3.log";

std::string Line(std::string_view message) {
    return std::string(kStampAndUser).append(message).append("\r\n");
}

struct LogFaults : CleanState {
    void Start(const fs::path& file) {
        utils_->InitUtils(FromUtf8(file.native()), u"Front Desk", u"", false, u"");
    }

    /// How often the library beeps while it logs a line.
    int BeepsAt(std::string_view line) {
        const int before = desktop_.Beeps();
        utils_->LogError(FromCodePage(line));
        return desktop_.Beeps() - before;
    }

    const fs::path log_ = folder_ / "a.log";
    std::shared_ptr<Utils> utils_ = Utils::Create();
};

TEST_F(LogFaults, ProcessesThatRotateOneLogAtOnceLoseNothing) {
    constexpr int kProcesses = 4, kLines = 400, kRounds = 20;
    const auto message = [](int process, int i) {
        return std::to_string(process) + std::string(static_cast<std::size_t>(i), '.');
    };
    const std::string before = kFull.substr(10'000) + "\r\n";
    for (int round = 0; round < kRounds; ++round) {
        WriteFile(log_, before);
        Start(log_);
        std::array<int, 2> gate{};
        ASSERT_EQ(::pipe(gate.data()), 0);
        for (int process = 0; process < kProcesses; ++process) {
            if (::fork() != 0) continue;
            ::close(gate[1]);
            char opened = 0;
            int beeps = static_cast<int>(::read(gate[0], &opened, 1));  // waits for the start
            for (int i = 0; i < kLines; ++i) beeps += BeepsAt(message(process, i));
            ::_exit(beeps);
        }
        ::close(gate[0]);
        ::close(gate[1]);
        for (int status = 0; ::wait(&status) > 0;) EXPECT_EQ(status, 0);

        ASSERT_EQ(NamesIn(folder_.Path()), (Names{"a.log", kArchive}));
        const std::string archive = ReadFile(folder_ / kArchive);
        EXPECT_TRUE(archive.starts_with(before));
        std::istringstream written(archive.substr(before.size()) + ReadFile(log_));
        Names lines;
        int count = 0;
        for (std::string line; std::getline(written, line); ++count) lines.insert(line + '\n');
        EXPECT_EQ(count, kProcesses * kLines);
        for (int i = 0; i < kProcesses * kLines; ++i) {
            ASSERT_TRUE(lines.contains(Line(message(i / kLines, i % kLines)))) << i;
        }
        fs::remove(folder_ / kArchive);
    }
}

TEST_F(LogFaults, AClockThatIsSetBackCostsNoLineAndNoOtherFile) {
    WriteFile(folder_ / "notes.log", "kept");
    WriteFile(log_, kFull);
    Start(log_);
    utils_->LogError(u"1");
    machine_.now -= std::chrono::hours(1);
    utils_->LogError(u"2");
    EXPECT_EQ(ReadFile(log_), Line("1") + Line("2").replace(10, 1, "8"));
    const DateTime archived = MakeDateTime(2024, 3, 5, 8, 7, 3);
    for (const DateTime now : {archived, archived, MakeDateTime(1969, 12, 31)}) {
        machine_.now = now;
        WriteFile(log_, kFull);
        EXPECT_EQ(BeepsAt("next"), 0) << "the archive of that second goes first";
        const char* const archive =
            now == archived ? "Error_2024_3_5_8_7_3.log" : "Error_1969_12_31_0_0_0.log";
        EXPECT_EQ(NamesIn(folder_.Path()), (Names{"a.log", "notes.log", archive}));
        EXPECT_TRUE(ReadFile(folder_ / archive) == kFull);
    }
}

TEST_F(LogFaults, ACalendarStartsAtItsFirstDayWhateverTheClockSays) {
    Start(log_);
    machine_.now = MakeDateTime(1600, 1, 1);
    desktop_.OnCalendar([](Calendar& days) { days.KeyDown(Calendar::Key::Enter); });
    EXPECT_EQ(utils_->ShowCalendar(-1, -1, -1), u"01/01/1753");
}

}  // namespace
}  // namespace halvek
