// SPDX-License-Identifier: MIT
#include "tests/LogTest.h"

#include <halvekutils/base/RuntimeError.h>

#include <gmock/gmock.h>
#include <sys/wait.h>
#include <unistd.h>

namespace halvek {
namespace {

namespace fs = std::filesystem;

struct ErrorLog : LogTest {
    /// Starts with a log of these bytes in the test's folder.
    void StartWith(const char* name, std::string_view bytes) {
        WriteFile(folder_ / name, bytes);
        Start(folder_ / name);
    }
};

TEST_F(ErrorLog, StampsEachLineOnThe12HourClock) {
    const std::pair<DateTime, std::string> rows[] = {
        {MakeDateTime(2024, 3, 5, 9, 7, 3), "03/05/24 09:07:03 AM"},
        {MakeDateTime(2005, 12, 31), "12/31/05 12:00:00 AM"},
        {MakeDateTime(2100, 1, 1, 12, 59, 59), "01/01/00 12:59:59 PM"},
    };
    Start(folder_ / "a.log");
    std::string expected;
    for (const auto& [now, stamp] : rows) {
        machine_.now = now;
        utils_->LogError(u" one\ttwo\r\nthree ");
        expected += stamp + "\tnina\t one\ttwo\r\nthree \r\n";
    }
    EXPECT_EQ(ReadFile(folder_ / "a.log"), expected);
}

TEST_F(ErrorLog, WritesEveryByteOfTheCodePageAndMessagesOfAnyLength) {
    std::string bytes;
    for (int code = 0; code < 256; ++code) bytes += static_cast<char>(code);
    bytes += std::string(10'000'000, 'x');
    Start(folder_ / "a.log");
    utils_->LogError(FromCodePage(bytes));
    EXPECT_TRUE(ReadFile(folder_ / "a.log") == Line(bytes));

    TheSession().loginUserName.clear();
    Start(folder_ / "b.log");
    for (const char16_t* name : {u"", u"Jos\u00E9 \u0141", u"asked no more"}) {
        machine_.loginName = name;
        utils_->LogError(u"\u20AC");
    }
    const std::string stamp(kStampAndUser.substr(0, 21));
    const std::string known = stamp + "Jos\xE9 ?\t\x80\r\n";
    EXPECT_EQ(ReadFile(folder_ / "b.log"), stamp + "\t\x80\r\n" + known + known);
}

TEST_F(ErrorLog, FindsItsFileByTheNameThatTheHostGave) {
    fs::create_directories(folder_ / "logs");
    const std::string base = folder_.Path();
    const std::pair<std::string, fs::path> rows[] = {
        {"", folder_ / "own/state/Error.Log"},
        {"FrontDesk.log", folder_ / "own/state/FrontDesk.log"},
        {base + "\\logs\\back.log", folder_ / "logs/back.log"},
        {base + "/logs\\m\u00E9xed.log", folder_ / "logs/m\u00E9xed.log"},
    };
    for (const auto& [name, file] : rows) {
        TheSession().logFolder.clear();
        Start(name);
        EXPECT_FALSE(fs::exists(file));
        utils_->LogError(u"1");
        utils_->LogError(u"2");
        EXPECT_EQ(ReadFile(file), Line("1") + Line("2")) << name;
    }
    EXPECT_EQ(desktop_.Beeps(), 0);
}

TEST_F(ErrorLog, KeepsTheFolderOfItsFirstLine) {
    for (const char* name : {"first", "second"}) fs::create_directory(folder_ / name);
    Start(folder_ / "first/a.log");
    utils_->LogError(u"a");
    WriteFile(folder_ / "second/b.log", kFull);
    Start(folder_ / "second\\b.log");
    utils_->LogError(u"b");
    Start("c.log");
    utils_->LogError(u"c");
    EXPECT_EQ(NamesIn(folder_ / "first"), (Names{kArchive, "a.log", "c.log"}));
    EXPECT_EQ(ReadFile(folder_ / "second/b.log"), Line("b"));
}

TEST_F(ErrorLog, ARotationDeletesEarlierArchivesOnly) {
    const Names kept = {".log",       "Error.Log", "a_error_1.log", "error-1.log", "error.log",
                        "error_.txt", "error_log", "error_x.log.1", "merror.log",  "notes.log"};
    const Names deleted = {"ERROR_A.LOG",  "Error_2023_12_31_1_2_3.log",
                           "error_.log",   "error_1.Log",
                           "merror_1.log", "mError_.LOG"};
    for (const Names* names : {&kept, &deleted}) {
        for (const std::string& name : *names) WriteFile(folder_ / name, "x");
    }
    fs::permissions(folder_ / "error_.log", fs::perms::owner_read);
    fs::create_directory(folder_ / "error_folder.log");
    WriteFile(folder_ / "error_folder.log/error_1.log", "x");
    StartWith("Error.Log", kFull);
    utils_->LogError(u"1");

    Names expected = kept;
    expected.insert({kArchive, "error_folder.log"});
    EXPECT_EQ(NamesIn(folder_.Path()), expected);
    EXPECT_TRUE(fs::exists(folder_ / "error_folder.log/error_1.log"));
}

TEST_F(ErrorLog, RotatesAtOneMebibyteEvenALogThatIsNamedLikeAnArchive) {
    for (const char* name : {"/error_live.log", "/./error_live.log", "\\\\error_live.log"}) {
        WriteFile(folder_ / "error_live.log", kFull.substr(1));
        Start(folder_.Path().native() + name);
        utils_->LogError(u"1");
        EXPECT_FALSE(fs::exists(folder_ / kArchive)) << name;
        utils_->LogError(u"2");
        EXPECT_EQ(ReadFile(folder_ / "error_live.log"), Line("2")) << name;
        EXPECT_TRUE(ReadFile(folder_ / kArchive) == kFull.substr(1) + Line("1")) << name;
        fs::remove(folder_ / kArchive);
    }
}

TEST_F(ErrorLog, ARotationLooksAt2001FilesAtMost) {
    for (int i = 0; i < 2100; ++i) {
        WriteFile(folder_ / ("error_" + std::to_string(i) + ".log"), "x");
    }
    StartWith("a.log", kFull);
    utils_->LogError(u"1");
    // 99 and the log with its archive, or 100 if the full log was among those looked at
    EXPECT_THAT(NamesIn(folder_.Path()).size(), testing::AnyOf(101u, 102u));
}

TEST_F(ErrorLog, LosesALineRatherThanAnArchiveThatTheCleanUpLeft) {
    struct Locked : TestMachine {
        using TestMachine::TestMachine;
        void Delete(const fs::path&) override { throw RuntimeError(Fault::PermissionDenied); }
    } machine(folder_ / "own");
    const UseMachine use(machine);
    WriteFile(folder_ / "error_1.log", "x");
    StartWith("a.log", kFull);
    utils_->LogError(u"1");
    EXPECT_EQ(desktop_.Beeps(), 1);  // the clean-up failed; the rotation went on
    EXPECT_EQ(NamesIn(folder_.Path()), (Names{kArchive, "a.log", "error_1.log"}));

    WriteFile(folder_ / "a.log", kFull + "y");
    Start(folder_ / "a.log", true);
    utils_->LogError(u"lost");
    ASSERT_EQ(desktop_.StockMessages().size(), 1u);
    EXPECT_THAT(ToUtf8(desktop_.StockMessages()[0].text), testing::HasSubstr("already exists"));
    EXPECT_TRUE(ReadFile(folder_ / "a.log") == kFull + "y");
    EXPECT_TRUE(ReadFile(folder_ / kArchive) == kFull);

    machine.now += std::chrono::seconds(1);
    utils_->LogError(u"next");
    EXPECT_EQ(ReadFile(folder_ / "a.log"), Line("next").replace(16, 1, "4"));
}

TEST_F(ErrorLog, WritesIntoALogThatWasReadOnly) {
    StartWith("a.log", "old\r\n");
    fs::permissions(folder_ / "a.log", fs::perms::owner_read | fs::perms::group_read);
    utils_->LogError(u"new");
    EXPECT_EQ(ReadFile(folder_ / "a.log"), "old\r\n" + Line("new"));
    EXPECT_EQ(fs::status(folder_ / "a.log").permissions(), fs::perms(0640));
}

TEST_F(ErrorLog, RefusesANulInItsFileName) {
    Start((folder_ / "a.log").native() + '\0' + "tail");
    EXPECT_EQ(BeepsAt("lost"), 1);
    EXPECT_TRUE(desktop_.StockMessages().empty());
    EXPECT_EQ(NamesIn(folder_.Path()), Names{});
}

TEST_F(ErrorLog, ProcessesThatRotateOneLogAtOnceLoseNothing) {
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

TEST_F(ErrorLog, AClockThatIsSetBackCostsNoLineAndNoOtherFile) {
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

}  // namespace
}  // namespace halvek
