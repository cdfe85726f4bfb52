#include "tests/CleanState.h"

#include <halvekutils/core/DebugConsole.h>
#include <halvekutils/core/Utils.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>

namespace halvek {
namespace {

struct DebugConsoleTest : CleanState {
    void SetUp() override { SetDebugMode(true); }

    void SetDebugMode(bool on) { utils_->InitUtils(u"", u"Front Desk", u"", on, u""); }
    std::u16string Text() const { return desktop_.Console()->Text(); }
    std::string Log() const { return ReadFile(machine_.ownFolder / "Error.Log"); }

    std::shared_ptr<Utils> utils_ = Utils::Create();
};

TEST_F(DebugConsoleTest, LinesAreDroppedOutsideDebugModeAndWithoutModelessWindows) {
    SetDebugMode(false);
    utils_->ShowInDebug(u"dropped");
    utils_->ClearDebug();
    SetDebugMode(true);
    desktop_.AllowModelessWindows(false);
    utils_->ShowInDebug(u"dropped");
    EXPECT_EQ(desktop_.Console(), nullptr);
    desktop_.AllowModelessWindows(true);
    utils_->ShowInDebug(u"kept");
    Services::Current().ShowInDebug(u"too");
    desktop_.Console()->SendAllToFile(true);
    Desktop* const desktop = Desktop::Install(nullptr);
    utils_->ShowInDebug(u"dropped");
    Desktop::Install(desktop);
    SetDebugMode(false);
    utils_->ShowInDebug(u"dropped");
    utils_->ClearDebug();
    EXPECT_EQ(Text(), u"kept\r\ntoo\r\n");
    EXPECT_EQ(Log(), "(missing)");
    SetDebugMode(true);
    utils_->ClearDebug();
    EXPECT_EQ(Text(), u"");
}

TEST_F(DebugConsoleTest, MoreThan30000CharactersAreClearedByTheNextLine) {
    utils_->ShowInDebug(std::u16string(29'997, u'x') + u'\n');
    utils_->ShowInDebug(u"");
    EXPECT_EQ(Text().size(), 30'002u);  // a line break counts as two
    utils_->ShowInDebug(u"new");
    EXPECT_EQ(Text(), u"<<<<<CLEARED>>>>>>new\r\n");
    utils_->ClearDebug();
    utils_->ShowInDebug(std::u16string(29'998, u'x'));
    utils_->ShowInDebug(desktop_.Console()->Text());
    EXPECT_EQ(Text().size(), 60'002u);
    utils_->ShowInDebug(desktop_.Console()->Text());
    EXPECT_EQ(Text().size(), 18u + 60'002u + 2u);
}

TEST_F(DebugConsoleTest, StoppedLoggingDropsLinesAndTellsWhenItStopsAndStarts) {
    utils_->ShowInDebug(u"1");
    DebugConsole& console = *desktop_.Console();
    console.SendAllToFile(true);
    console.StopLogging(true);
    utils_->ShowInDebug(u"2");
    console.StopLogging(false);
    EXPECT_EQ(Text(), u"1\r\n<<<<<LOG STOPPED>>>>>\r\n<<<<<LOG STARTED>>>>>\r\n");
    EXPECT_EQ(Log(), "03/05/24 09:07:03 AM\tnina\t<<<<<LOG STARTED>>>>>\r\n");
}

/// A log whose writing is itself a matter for the debug console.
struct TalkingMachine : TestMachine {
    using TestMachine::TestMachine;
    void Append(const std::filesystem::path& file, std::string_view bytes) override {
        if (Services::Current().DebugMode()) Services::Current().ShowInDebug(u"writing");
        TestMachine::Append(file, bytes);
    }
};

TEST_F(DebugConsoleTest, ALineThatIsWrittenWhileAnotherGoesToTheLogIsOnlyShown) {
    TalkingMachine talking(machine_.ownFolder);
    const UseMachine use(talking);
    utils_->ShowInDebug(u"1");
    desktop_.Console()->SendAllToFile(true);
    utils_->ShowInDebug(u"2");
    utils_->ShowInDebug(u"3");
    EXPECT_EQ(Text(), u"1\r\n2\r\nwriting\r\n3\r\nwriting\r\n");
    const std::string stamp = "03/05/24 09:07:03 AM\tnina\t";
    EXPECT_EQ(Log(), stamp + "2\r\n" + stamp + "3\r\n");
}

TEST_F(DebugConsoleTest, ItsTextIsSavedToAFileThatCanBeDeleted) {
    const auto file = machine_.ownFolder / "DEBUG.log";
    utils_->ShowInDebug(std::u16string(u"\u20AC\u0141\0", 3));
    DebugConsole& console = *desktop_.Console();
    console.KillLogFile();  // there is none yet
    console.SaveToFile();
    console.Clear();
    console.SaveToFile();
    const std::string stamp = "03/05/2024 09:07:03 AM\r\n\r\n";
    EXPECT_EQ(ReadFile(file), stamp + std::string("\x80?\0\r\n\r\n", 7) + stamp + "\r\n");
    console.KillLogFile();
    EXPECT_EQ(ReadFile(file), "(missing)");
    std::filesystem::create_directory(file);
    console.SaveToFile();
    console.KillLogFile();
    EXPECT_TRUE(std::filesystem::is_directory(file));
    EXPECT_EQ(desktop_.Beeps() + static_cast<int>(desktop_.StockMessages().size()), 0);
    EXPECT_EQ(Log(), "(missing)");
}

/// A desktop that cannot show the console.
struct BrokenDesktop : ScriptedPlatform {
    using ScriptedPlatform::Show;
    void Show(const std::shared_ptr<DebugConsole>&) override {
        throw RuntimeError(Fault::DeviceError);
    }
};

TEST_F(DebugConsoleTest, ADesktopThatCannotShowItIsLogged) {
    const BrokenDesktop broken;
    utils_->ShowInDebug(u"lost");
    EXPECT_TRUE(Log().ends_with("\tCan not display Debug windowDevice error\r\n")) << Log();
}

}  // namespace
}  // namespace halvek
