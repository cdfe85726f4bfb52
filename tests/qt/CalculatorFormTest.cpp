// SPDX-License-Identifier: MIT
#include "tests/qt/FormTest.h"

namespace halvek {
namespace {

struct CalculatorFormTest : FormTest {
    /// Shows a calculator to the user, who acts and closes it with Escape.
    void Show(const std::function<void(QDialog& form, QLineEdit& box)>& acts) {
        const User user([&](QDialog& form) {
            acts(form, Find<QLineEdit>(form, "txtOutput"));
            PressKey(form, Qt::Key_Escape);
        });
        EXPECT_EQ(utils_->Calculate(), u"");
    }
};

TEST_F(CalculatorFormTest, HeldKeysAndTheKeyboardsHookCountOnce) {
    Show([](QDialog& form, QLineEdit& box) {
        const auto hold = [&](Qt::Key key, const char* text) {
            QKeyEvent event(QEvent::KeyPress, key, {}, QLatin1String(text), true);
            QCoreApplication::sendEvent(form.focusWidget(), &event);
        };
        hold(Qt::Key_Return, "\r");  // held since it opened the calculator
        Type(form, "413");
        hold(Qt::Key_3, "3");
        Type(form, "-2.5\r");
        hold(Qt::Key_Return, "\r");
        EXPECT_EQ(box.text(), "410.5");
        for (const int code : {107, 98, 13}) {
            QMetaObject::invokeMethod(&form, "HookedKeyDown", Q_ARG(int, code));
        }
        EXPECT_EQ(box.text(), "412.5");
    });
}

TEST_F(CalculatorFormTest, AButtonFlashesWithoutHoldingUpTheKeys) {
    Show([](QDialog& form, QLineEdit& box) {
        const auto face = [&] { return Find(form, "arrCmd_7").palette().color(QPalette::Button); };
        const QColor before = face();
        Type(form, "7+7+7+7+7+7+7+7+7+7=");
        EXPECT_EQ(box.text(), "70");
        // Again where a slow machine takes longer for a key than the flash lasts
        EXPECT_TRUE(Soon([&] {
            Type(form, "7");
            return face() == Qt::white;
        }));
        EXPECT_TRUE(Soon([&] { return face() == before; }));
    });
}

}  // namespace
}  // namespace halvek
