// SPDX-License-Identifier: MIT
#include "tests/HostWindow.h"
#include "tests/qt/DialogCalls.h"
#include "tests/qt/FormTest.h"

/// Of the leak sanitizer, where there is one.
extern "C" [[gnu::weak]] void __lsan_disable();

namespace halvek {
namespace {

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

struct ThrowingHost : FormTest {
    // The faults are logged.
    ~ThrowingHost() override { std::filesystem::remove(machine_.ownFolder / "Error.Log"); }
};

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
            QTimer::singleShot(kPatience, &closes, [] {
                ADD_FAILURE() << "a call never returns";
                QCoreApplication::exit();
            });
            row.open(*utils_, *host, std::make_shared<BrokenForm>());
            hasThrown = filter.HasThrown();
            EXPECT_EQ(OpenDialog(), nullptr) << events;
            EXPECT_EQ(QApplication::activeModalWidget(), nullptr) << events;
            EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor) << events;
            QGuiApplication::restoreOverrideCursor();
            EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr) << events;
        }
    }
}

}  // namespace
}  // namespace halvek
