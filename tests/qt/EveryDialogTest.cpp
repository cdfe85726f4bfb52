// SPDX-License-Identifier: MIT
// What holds for every dialog whatever its host does.
#include "tests/HelpFile.h"
#include "tests/HostWindow.h"
#include "tests/qt/DialogCalls.h"
#include "tests/qt/FormTest.h"

#include <halvekutils/core/DebugConsole.h>

/// Of the leak sanitizer, where there is one.
extern "C" [[gnu::weak]] void __lsan_disable();

namespace halvek {
namespace {

struct LostOwner : FormTest {
    LostOwner() { Start(true); }

    /// Clicks a box in a window that no dialog may block, twice.
    static void Use(const char* name, const char* box) {
        QWidget& window = Window(name);
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
        auto& button = Find<QAbstractButton>(window, box);
        for (const bool isOn : {!button.isChecked(), button.isChecked()}) {
            Click(window, button);
            EXPECT_EQ(button.isChecked(), isOn) << name;
        }
    }
    static void UseHelp() { Use("HelpViewer", "cmdContents"); }
    static void UseConsole() { Use("frmDebug", "chkNoLog"); }

    const HelpFile help_{1};
};

TEST_F(LostOwner, ADialogWhoseHostWindowGoesCountsAsClosedAndTheOtherWindowsStay) {
    for (const DialogCall& row : kDialogCalls) {
        SCOPED_TRACE(row.name);
        std::unique_ptr<QWidget> host = OpenHostWindow({100, 100, 300, 200});
        auto* const target = new QPushButton(host.get());
        target->show();
        const User user([&](QDialog& dialog) {
            // Help and console open after the first dialog, before the others.
            if (&row == kDialogCalls) utils_->ShowHelp(0, 100, help_.Path().u16string());
            utils_->ShowInDebug(u"before");
            UseHelp();
            UseConsole();
            const User again([](QDialog& upper) {
                UseHelp();
                UseConsole();
                PressKey(upper, Qt::Key_O);
            });
            utils_->ShowMsgBox(u"Really?", mbOkOnly, mbQuestion, u"");
            UseHelp();
            UseConsole();
            EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::ArrowCursor);
            const QPointer<QDialog> open(&dialog);
            host.reset();
            utils_->ShowInDebug(u"behind");
            EXPECT_TRUE(Soon([&] { return open == nullptr || !open->isVisible(); }));
        });
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
        EXPECT_EQ(row.open(*utils_, *target, AsOwnerForm(host.get())), row.givenClosed.Str());
        EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
        QGuiApplication::restoreOverrideCursor();
        EXPECT_TRUE(DebugConsole::Current()->Text().ends_with(u"behind\r\n"));
        UseHelp();
        UseConsole();
    }
}

/// A host's event filter that throws once, at one event of a dialog or its parts.
class ThrowingFilter : public QObject {
  public:
    explicit ThrowingFilter(int eventsBefore) : left_(eventsBefore) {
        qApp->installEventFilter(this);
    }
    bool HasThrown() const { return left_ < 0; }

    bool eventFilter(QObject* watched, QEvent*) override {
        const auto* const part = qobject_cast<QWidget*>(watched);
        if (part == nullptr || qobject_cast<QDialog*>(part->window()) == nullptr) return false;
        // Before, Qt's own constructors would leave broken widgets behind.
        if (!part->window()->testAttribute(Qt::WA_WState_Created)) return false;
        if (left_ >= 0 && left_-- == 0) throw std::runtime_error("a host's fault");
        return false;
    }

  private:
    int left_;
};

/// A host's form that cannot be refreshed.
struct BrokenForm : HostWindow {
    void Refresh() override { throw std::runtime_error("a host's fault"); }
};

using ThrowingHost = FormTest;

TEST_F(ThrowingHost, EveryDialogReturnsWhereverAHostsFilterThrows) {
    constexpr int kStep = 3;
    // Qt leaks what its functions hold when an exception passes through them.
    if (__lsan_disable != nullptr) __lsan_disable();
    const auto host = OpenHostWindow({100, 100, 300, 200});
    for (const DialogCall& row : kDialogCalls) {
        SCOPED_TRACE(row.name);
        bool hasThrown = true;
        for (int events = 0; hasThrown; events += kStep) {
            QGuiApplication::setOverrideCursor(Qt::WaitCursor);
            ThrowingFilter filter(events);
            QTimer closes;
            QObject::connect(&closes, &QTimer::timeout, [] {
                if (QWidget* const dialog = QApplication::activeModalWidget()) dialog->close();
            });
            closes.start(0);
            row.open(*utils_, *host, std::make_shared<BrokenForm>());
            hasThrown = filter.HasThrown();
            EXPECT_EQ(OpenDialog(), nullptr) << events;
            EXPECT_EQ(QApplication::activeModalWidget(), nullptr) << events;
            EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor) << events;
            QGuiApplication::restoreOverrideCursor();
            EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr) << events;
        }
    }
    TakeLog();  // of the faults
}

}  // namespace
}  // namespace halvek
