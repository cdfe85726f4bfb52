// SPDX-License-Identifier: MIT
#include "tests/LogTest.h"

namespace halvek {
namespace {

struct DebugConsoleTest : CleanState {
    void SetUp() override { Start(true); }
    std::u16string Text() const { return desktop_.Console()->Text(); }
};

TEST_F(DebugConsoleTest, LinesAreDroppedOutsideDebugModeAndWithoutModelessWindows) {
    Desktop* const desktop = Desktop::Install(nullptr);
    utils_->ShowInDebug(u"no desktop");
    Desktop::Install(desktop);
    desktop_.AllowModelessWindows(false);
    utils_->ShowInDebug(u"no modeless windows");
    EXPECT_EQ(desktop_.Console(), nullptr);
    desktop_.AllowModelessWindows(true);
    utils_->ClearDebug();
    desktop_.Console()->SendAllToFile(true);
    utils_->ShowInDebug(u"1");
    desktop_.Console()->StopLogging(true);
    utils_->ShowInDebug(u"logging stopped");
    desktop_.Console()->StopLogging(false);
    Start(false);
    utils_->ShowInDebug(u"no debug mode");
    utils_->ClearDebug();
    EXPECT_EQ(Text(), u"1\r\n<<<<<LOG STOPPED>>>>>\r\n<<<<<LOG STARTED>>>>>\r\n");
    EXPECT_EQ(Log(), Line("1") + Line("<<<<<LOG STARTED>>>>>"));
}

/// A log that writes to the debug console itself.
struct TalkingMachine : TestMachine {
    using TestMachine::TestMachine;
    bool TryAppend(const std::filesystem::path& file, std::string_view bytes,
                   std::uintmax_t length) override {
        Services::Current().ShowInDebug(u"writing");
        return TestMachine::TryAppend(file, bytes, length);
    }
};

TEST_F(DebugConsoleTest, ALineThatIsWrittenWhileAnotherGoesToTheLogIsOnlyShown) {
    TalkingMachine talking(machine_.ownFolder);
    const UseMachine use(talking);
    utils_->ClearDebug();
    desktop_.Console()->SendAllToFile(true);
    for (const auto* const line : {u"1", u"2"}) utils_->ShowInDebug(line);
    EXPECT_EQ(Text(), u"1\r\nwriting\r\n2\r\nwriting\r\n");
    EXPECT_EQ(Log(), Line("1") + Line("2"));
}

TEST_F(DebugConsoleTest, ItsTextIsSavedToAFileThatCanBeDeleted) {
    const auto file = machine_.ownFolder / "DEBUG.log";
    utils_->ShowInDebug(std::u16string(u"\u20AC\u0141\0", 3));
    DebugConsole& console = *desktop_.Console();
    console.KillLogFile();  // there is none yet
    for (int i = 0; i < 2; ++i) console.SaveToFile();
    const std::string saved("03/05/2024 09:07:03 AM\r\n\r\n\x80?\0\r\n\r\n", 33);
    EXPECT_EQ(ReadFile(file), saved + saved);
    console.KillLogFile();
    EXPECT_EQ(ReadFile(file), "(missing)");
    std::filesystem::create_directory(file);
    console.SaveToFile();
    console.KillLogFile();
    EXPECT_TRUE(std::filesystem::exists(file)) << "a folder in its place stays";
}

}  // namespace
}  // namespace halvek
