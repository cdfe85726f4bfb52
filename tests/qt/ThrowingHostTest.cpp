// SPDX-License-Identifier: MIT
#include "tests/qt/FormTest.h"

#include <halvekutils/qt/QtControls.h>

#include <stdexcept>

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
struct BrokenForm : OwnerForm {
    std::int32_t Left() const override { return 0; }
    std::int32_t Top() const override { return 0; }
    std::int32_t Width() const override { return 0; }
    std::int32_t Height() const override { return 0; }
    bool Exists() const override { return true; }
    void Refresh() override { throw std::runtime_error("a host's fault"); }
};

struct ThrowingHost : FormTest {
    // The faults are logged.
    ~ThrowingHost() override { std::filesystem::remove(machine_.ownFolder / "Error.Log"); }

    std::vector<std::function<void()>> Calls() {
        const auto form = std::make_shared<BrokenForm>();
        return {
            [=, this] { utils_->ShowMsgBox(u"?", mbOkCancel, mbNoIcon, u""); },
            [=, this] { utils_->Calculate(u"1"); },
            [=, this] { utils_->ShowCalendar(-1, -1, -1, u"", u"", form); },
            [=, this] { utils_->ShowColor(-1, -1, -1, form); },
            [=, this] {
                utils_->ShowSelection(u"Codes", u"H:A\tAlpha\t0:", u"", -1, -1, -1, form);
            },
        };
    }
};

TEST_F(ThrowingHost, EveryDialogReturnsWhereverAHostsFilterThrows) {
    constexpr int kStep = 3;
    // Qt leaks what its functions hold when an exception passes through them.
    if (__lsan_disable != nullptr) __lsan_disable();
    utils_->InitPrefs(StringArray(1, {u"255", u"0", u"0", u"0"}), 0, 0, 0, 0);
    for (const auto& call : Calls()) {
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
            call();
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
