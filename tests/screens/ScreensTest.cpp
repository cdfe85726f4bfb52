// SPDX-License-Identifier: MIT
// Where windows open on a desktop with two screens and a task bar, and who has the keyboard; and
// that they open on any other.
#include "tests/HelpFile.h"
#include "tests/qt/DialogCalls.h"
#include "tests/qt/FormTest.h"

#include <chrono>
#include <csignal>
#include <ostream>
#include <thread>

namespace halvek {
namespace {

std::string Told(const QString& command) {
    QProcess process;
    QStringList words = QProcess::splitCommand(command);
    process.start(words.takeFirst(), words);
    process.waitForFinished();
    return process.readAllStandardOutput().toStdString();
}

QString IdOf(const QWidget& window) {
    return QString::number(window.winId());
}

std::ostream& operator<<(std::ostream& out, const QRect& r) {
    return out << r.x() << ',' << r.y() << ' ' << r.width() << 'x' << r.height();
}

/// A bar at the bottom of all screens that windows must not cover. Window managers that bring one
/// of their own get it, too.
class TaskBar : public QWidget {
  public:
    explicit TaskBar(const QRect& desktop) {
        constexpr int kHeight = 30;
        setAttribute(Qt::WA_X11NetWmWindowTypeDock);
        setWindowFlags(Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus);
        setGeometry(desktop.adjusted(0, desktop.height() - kHeight, 0, 0));
        const QString bar = QString("0, 0, 0, %1").arg(kHeight);
        Told("xprop -id " + IdOf(*this) + " -f _NET_WM_STRUT 32c -set _NET_WM_STRUT \"" + bar +
             '"');
        const QString across = QString(", 0, 0, 0, 0, 0, 0, 0, %1").arg(desktop.right());
        Told("xprop -id " + IdOf(*this) +
             " -f _NET_WM_STRUT_PARTIAL 32c -set _NET_WM_STRUT_PARTIAL \"" + bar + across + '"');
        show();
    }
};

/// Takes the keyboard from every window.
void LoseKeyboard() {
    const QString root = QString::fromStdString(Told("xwininfo -root")).section("id: ", 1);
    Told("xdotool windowfocus " + root.section(' ', 0, 0));
}

/// What the window manager leaves to windows, as its own tools say.
QRect WorkArea() {
    const QString said = QString::fromStdString(Told("xprop -root _NET_WORKAREA"));
    const QStringList n = said.section('=', 1).split(',');
    return n.size() < 4 ? QRect() : QRect(n[0].toInt(), n[1].toInt(), n[2].toInt(), n[3].toInt());
}

struct ScreensTest : FormTest {
    ScreensTest() {
        const QRect desktop = QGuiApplication::primaryScreen()->virtualGeometry();
        bar_ = std::make_unique<TaskBar>(desktop);
        EXPECT_TRUE(Soon([&] {
            usable_ = WorkArea();
            return usable_.height() > 0 && usable_.height() < desktop.height();
        }));
    }

    void OpenHost(QScreen& screen, bool low) {
        host_ = std::make_unique<QWidget>();
        host_->setObjectName("host");
        target_ = new QPushButton("...", host_.get());
        target_->move(40, 200);
        QRect place(0, 0, 300, 240);
        place.moveTopLeft(screen.geometry().topLeft() + QPoint(400, 60));
        if (low) place.moveBottom((screen.geometry() & usable_).bottom() - 10);
        host_->setGeometry(place);
        host_->show();
        Activate(*host_);
        ASSERT_TRUE(Soon([&] { return host_->screen() == &screen; }));
    }

    /// What is wrong about the place of a window.
    std::string MissesOf(const QWidget& window, bool isBeside) const {
        const QRect frame = window.windowHandle()->frameGeometry();
        const QRect area = host_->screen()->geometry() & usable_;
        std::ostringstream misses;
        if (window.screen() != host_->screen()) misses << " screen";
        if (!area.contains(frame)) misses << " area (" << frame << " in " << area << ")";
        if (!isBeside) return misses.str();
        const QRect target(target_->mapToGlobal(QPoint()), target_->size());
        if (frame.top() != target.bottom() + 1 && frame.bottom() + 1 != target.top()) {
            misses << " gap (" << frame << " at " << target << ")";
        }
        return misses.str();
    }
    std::string MissesOf(const QWidget& dialog, const DialogCall& opening) const {
        const bool isOwned = dialog.windowHandle()->transientParent() == host_->windowHandle();
        return MissesOf(dialog, opening.isBeside) + (isOwned ? "" : " owner");
    }

    /// Opens a dialog in front of the user, who looks and closes it.
    void Look(const DialogCall& opening, const std::shared_ptr<OwnerForm>& form = nullptr) {
        const User user([&](QDialog& dialog) {
            const auto misses = [&] { return MissesOf(dialog, opening); };
            const bool fine = QTest::qWaitFor([&] { return misses().empty(); }, 2000);
            EXPECT_TRUE(fine) << opening.name << misses();
            dialog.reject();
        });
        opening.open(*utils_, *target_, form);
    }

    std::unique_ptr<TaskBar> bar_;
    QRect usable_;
    std::unique_ptr<QWidget> host_;
    QPushButton* target_ = nullptr;
};

/// On a desktop that decides itself where windows are and which of them is active
using AnyDesktopTest = FormTest;

TEST_F(AnyDesktopTest, EveryWindowOpensAndReturns) {
    const HelpFile help(10);
    Start(true);
    QWidget host;
    QPushButton target("...", &host);
    host.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&host));
    for (const DialogCall& opening : kDialogCalls) {
        SCOPED_TRACE(opening.name);
        const User user([](QDialog& dialog) { dialog.close(); }, User::Awaits::Paint);
        opening.open(*utils_, target, nullptr);
    }
    utils_->ShowInDebug(u"line");
    utils_->ShowHelp(0, 100, help.Path().u16string());
    for (const char* const name : {"frmDebug", "HelpViewer"})
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&Window(name))) << name;
}

TEST_F(ScreensTest, DialogsOpenAtTheirOwnerOnEitherScreenAboveTheTaskBar) {
    ASSERT_EQ(QGuiApplication::screens().size(), 2);
    for (QScreen* const screen : QGuiApplication::screens()) {
        for (const bool low : {false, true}) {
            OpenHost(*screen, low);
            for (const DialogCall& opening : kDialogCalls) {
                SCOPED_TRACE(screen->name().toStdString() + (low ? ", low" : ""));
                Look(opening);
                // Again at once, before the first one's end is over.
                Look(kDialogCalls[0]);
                Look(opening);
            }
        }
    }
}

TEST_F(ScreensTest, ADialogStandsWhereAskedThoughTheWindowManagerIsSlow) {
    const int manager = qEnvironmentVariableIntValue("HALVEK_WINDOW_MANAGER");
    ASSERT_GT(manager, 0);
    OpenHost(*QGuiApplication::screens().last(), false);
    for (const DialogCall& opening : kDialogCalls) {
        ::kill(manager, SIGSTOP);
        // On a thread: it may have been stopped while no other client was served.
        std::thread resume([manager] {
            std::this_thread::sleep_for(std::chrono::milliseconds(700));
            ::kill(manager, SIGCONT);
        });
        const User user([&](QDialog& dialog) {
            EXPECT_TRUE(Soon([&] { return dialog.windowHandle()->isExposed(); })) << opening.name;
            QTest::qWait(300);
            EXPECT_EQ(MissesOf(dialog, opening), "") << opening.name;
            dialog.reject();
        });
        opening.open(*utils_, *target_, nullptr);
        resume.join();
        EXPECT_TRUE(Soon([&] { return host_->isActiveWindow(); }));
    }
}

/// Another program that the user types into.
struct OtherProgram {
    OtherProgram() {
        program.start("xev", {"-event", "keyboard"});
        EXPECT_TRUE(Soon([] {
            Told("wmctrl -a \"Event Tester\"");
            return Told("xdotool getactivewindow getwindowname").starts_with("Event Tester");
        }));
        EXPECT_TRUE(Soon([] { return QGuiApplication::focusWindow() == nullptr; }));
    }
    ~OtherProgram() {
        program.kill();
        program.waitForFinished();
    }
    /// Types a key and waits until the program has got it.
    void Type(const QString& key) {
        const qsizetype before = heard.count("KeyPress");
        Told("xdotool key " + key);
        EXPECT_TRUE(Soon([&] {
            heard += program.readAllStandardOutput();
            return heard.count("KeyPress") > before;
        }));
    }

    QProcess program;
    QByteArray heard;
};

TEST_F(ScreensTest, ADialogBelongsToTheFormThatItRefreshesWhenNoWindowIsActive) {
    OpenHost(*QGuiApplication::screens().last(), false);
    const auto wasActive = OpenHostWindow({40, 40, 200, 100});  // on the first screen
    const OtherProgram program;
    const auto open = [](Utils& utils, auto&, auto& form) {
        return utils.ShowCalendar(-1, -1, -1, u"", u"", form);
    };
    Look({"calendar", false, u"", open}, AsOwnerForm(host_.get()));
}

TEST_F(ScreensTest, TheKeyboardComesBackFromADialogThoughTheWindowManagerLosesIt) {
    OpenHost(*QGuiApplication::screens().first(), false);
    Look(kDialogCalls[0]);
    ASSERT_TRUE(Soon([&] { return host_->isActiveWindow(); }));
    LoseKeyboard();
    if (!QTest::qWaitFor([] { return QGuiApplication::focusWindow() == nullptr; }, 1000)) {
        GTEST_SKIP() << "this window manager gives it back itself";
    }
    EXPECT_TRUE(Soon([&] { return host_->isActiveWindow(); }));
}

/// On the first and on the second screen: each opens once in a session.
struct OtherWindowsTest : ScreensTest, ::testing::WithParamInterface<int> {};

TEST_P(OtherWindowsTest, HelpAndConsoleOpenOnTheHostsScreen) {
    const HelpFile help(10);
    Start(true);
    OpenHost(*QGuiApplication::screens()[GetParam()], true);
    utils_->ShowInDebug(u"line");
    utils_->ShowHelp(0, 100, help.Path().u16string());
    EXPECT_TRUE(Soon([&] { return Window("HelpViewer").isActiveWindow(); }));
    for (const char* const name : {"frmDebug", "HelpViewer"}) {
        const QWidget& window = Window(name);
        const bool fits = QTest::qWaitFor([&] { return MissesOf(window, false).empty(); }, 2000);
        EXPECT_TRUE(fits) << name << MissesOf(window, false);
    }
    EXPECT_FALSE(Window("frmDebug").isActiveWindow());
}
INSTANTIATE_TEST_SUITE_P(Screens, OtherWindowsTest, ::testing::Values(0, 1));

/// A window manager that draws no attention to windows in full view
bool AttendsToHiddenWindowsOnly() {
    return Told("wmctrl -m").starts_with("Name: Metacity");
}

TEST_F(ScreensTest, ABoxThatOpensBehindAnotherProgramWaitsForAttention) {
    OpenHost(*QGuiApplication::screens().last(), false);
    for (const DialogCall& opening : kDialogCalls) {
        OtherProgram other;
        const auto answer = [&](QDialog& dialog) {
            for (const char* key : {"y", "Return", "Escape", "space"}) other.Type(key);
            EXPECT_TRUE(dialog.isVisible()) << opening.name << " was answered";
            EXPECT_FALSE(dialog.isActiveWindow()) << opening.name;
            const std::string state = Told("xprop -id " + IdOf(dialog) + " _NET_WM_STATE");
            const bool asks = state.find("DEMANDS_ATTENTION") != state.npos;
            EXPECT_TRUE(asks || AttendsToHiddenWindowsOnly()) << opening.name << state;
            EXPECT_EQ(MissesOf(dialog, opening), "") << opening.name;
            Told("wmctrl -i -a " + IdOf(dialog));
            EXPECT_TRUE(Soon([&] { return dialog.isActiveWindow(); })) << opening.name;
            dialog.close();
        };
        const User user(answer, User::Awaits::Paint);
        opening.open(*utils_, *target_, nullptr);
        Activate(*host_);
    }
}

}  // namespace
}  // namespace halvek
