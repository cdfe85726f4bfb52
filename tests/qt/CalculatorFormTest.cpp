// SPDX-License-Identifier: MIT
#include "tests/qt/FormTest.h"

#include <halvekutils/qt/QtText.h>

#include <QClipboard>
#include <QLineEdit>
#include <gtest/gtest.h>

#include <functional>

namespace halvek {
namespace {

/// The calculator as its user sees it.
struct Seen {
    QDialog& form;
    QLineEdit& box = Find<QLineEdit>(form, "txtOutput");

    /// The control that has the focus, and what a screen reader says there.
    QString Focus() const {
        return form.focusWidget()->objectName() + form.focusWidget()->accessibleDescription();
    }
    QColor Face(const char* button) const {
        return Find(form, button).palette().color(QPalette::Button);
    }
    void Press(QKeyCombination key) const { PressKey(form, key); }
    void ClickOn(const char* control) const { Click(form, Find(form, control)); }
    void Type(const char* keys, Qt::KeyboardModifiers modifiers = {}) const {
        for (; *keys != 0; ++keys) QTest::keyClick(form.windowHandle(), *keys, modifiers);
    }
    void Hold(Qt::Key key, const char* text) const {
        QKeyEvent event(QEvent::KeyPress, key, {}, QLatin1String(text), true);
        QCoreApplication::sendEvent(form.focusWidget(), &event);
    }
    void Paste(const char* text) const {
        QApplication::clipboard()->setText(text);
        Press(Qt::ControlModifier | Qt::Key_V);
    }
};

class CalculatorFormTest : public FormTest {
  protected:
    using Acts = std::function<void(const Seen&)>;

    /// What the user's acts return; a calculator that they leave open is closed with Escape.
    QString Result(TextIn initValue, const Acts& acts) {
        const User user([&](QDialog& form) {
            acts({form});
            if (form.isVisible()) PressKey(form, Qt::Key_Escape);
        });
        QString result = ToQString(utils_->Calculate(initValue));
        EXPECT_TRUE(user.HasActed());
        return result;
    }
};

TEST_F(CalculatorFormTest, EveryKeyAndClickCountsOnce) {
    const Acts ways[] = {
        [](const Seen& seen) { seen.Type("12.5*33-2\r\r"); },
        [](const Seen& seen) { seen.Type("12.5*33-2\r\r", Qt::KeypadModifier); },
        [](const Seen& seen) { seen.Type("12.5*33-2  "); },
        [](const Seen& seen) {
            for (const int index : {1, 2, 11, 5, 13, 3, 3, 14, 2, 16, 18}) {
                seen.ClickOn("arrCmd_" + QByteArray::number(index));
            }
        },
        [](const Seen& seen) {
            for (const int code : {97, 98, 110, 101, 106, 99, 99, 109, 98, 13, 13}) {
                QMetaObject::invokeMethod(&seen.form, "HookedKeyDown", Q_ARG(int, code));
            }
        },
        [](const Seen& seen) {
            seen.Hold(Qt::Key_Return, "\r");  // held since it opened the calculator
            seen.Type("413");
            seen.Hold(Qt::Key_3, "3");
            seen.Type("-2.5\r");
            seen.Hold(Qt::Key_Return, "\r");
            seen.Type("\r");
        },
    };
    for (const Acts& way : ways) EXPECT_EQ(Result(u"7", way), "410.5");
}

TEST_F(CalculatorFormTest, AButtonFlashesWithoutHoldingUpTheKeys) {
    Result(u"", [](const Seen& seen) {
        const QColor face = seen.Face("arrCmd_7");
        seen.Type("7+7+7+7+7+7+7+7+7+7=");
        EXPECT_EQ(seen.box.text(), "70");
        EXPECT_EQ(seen.Face("arrCmd_7"), QColor(Qt::white));
        EXPECT_TRUE(Soon([&] { return seen.Face("arrCmd_7") == face; }));
    });
}

TEST_F(CalculatorFormTest, TheFocusMovesToTheNextLikelyButtonWhichTellsTheDisplay) {
    Result(u"12.345", [](const Seen& seen) {
        EXPECT_EQ(seen.Focus(), "arrCmd_18Display 12.35");
        seen.Type("9/");
        EXPECT_EQ(seen.Focus(), "arrCmd_16Display 9");
        seen.ClickOn("txtOutput");
        EXPECT_EQ(Find(seen.form, "arrCmd_16").accessibleDescription(), "");
        seen.Type("/=");
        EXPECT_EQ(seen.Focus(), "arrCmd_18Display 9");
    });
}

TEST_F(CalculatorFormTest, TheBoxTakesDigitsOnePointAndEditingKeysAndShowsAnyResultWhole) {
    Result(u"", [](const Seen& seen) {
        seen.ClickOn("txtOutput");
        seen.Type("1a,2.3.4 \r");
        for (const Qt::Modifier other : {Qt::ALT, Qt::META}) seen.Press(other | Qt::Key_W);
        for (const auto key : {Qt::Key_Backspace, Qt::Key_Home, Qt::Key_Delete}) seen.Press(key);
        seen.Type("45678901234567");
        EXPECT_EQ(seen.box.text(), "4567890123452.3");
        seen.Press(Qt::ControlModifier | Qt::Key_A);
        seen.Type("9*99999999999999999=");
        EXPECT_EQ(seen.box.text(), "8.99999999999999E+15");
    });
}

TEST_F(CalculatorFormTest, TheClipboardTakesTheNumberAndGivesOne) {
    Result(u"$1,234.50", [](const Seen& seen) {
        seen.Press(Qt::ControlModifier | Qt::Key_C);
        EXPECT_EQ(QApplication::clipboard()->text(), "1234.5");
        for (const char* text : {"$2,000.50\r\n", "<b>", "1"}) seen.Paste(text);
        EXPECT_EQ(seen.box.text(), "2000.501");
        seen.ClickOn("txtOutput");
        seen.Press(Qt::ControlModifier | Qt::Key_A);
        seen.Paste("7");
        seen.Type("/0=");
        seen.Press(Qt::ControlModifier | Qt::Key_C);
        EXPECT_EQ(QApplication::clipboard()->text(), "7");
    });
}

TEST_F(CalculatorFormTest, TheCloseBoxAndTheEndOfTheApplicationReturnNothing) {
    const Acts close = [](const Seen& seen) { seen.Type("+3="), CloseRequest(seen.form); };
    const Acts quit = [](const Seen& seen) { seen.Type("+3="), QCoreApplication::exit(); };
    const auto calculate = [&] {
        for (const Acts& end : {close, quit}) EXPECT_EQ(Result(u"5", end), "");
    };
    QTimer::singleShot(0, calculate);
    QApplication::exec();
}

}  // namespace
}  // namespace halvek
