#include "tests/qt/FormTest.h"

#include <halvekutils/qt/QtText.h>

#include <QAccessible>
#include <QClipboard>
#include <QLineEdit>
#include <QPushButton>
#include <gtest/gtest.h>

#include <functional>
#include <utility>

namespace halvek {
namespace {

/// The calculator as its user sees it.
struct Seen {
    QDialog& form;
    QLineEdit& box = Find<QLineEdit>(form, "txtOutput");

    QString Focus() const { return form.focusWidget()->objectName(); }
    QPushButton& Button(int index) const {
        return Find<QPushButton>(form, qPrintable(QStringLiteral("arrCmd_%1").arg(index)));
    }
    void Type(const char* text, Qt::KeyboardModifiers modifiers = {}) const {
        for (; *text != 0; ++text) QTest::keyClick(form.windowHandle(), *text, modifiers);
    }
    void ClickCaptions(const char* text) const {
        for (QPushButton* const button : form.findChildren<QPushButton*>()) {
            if (button->text() == QLatin1Char(*text)) Click(form, *button);
        }
        if (*text != 0) ClickCaptions(text + 1);
    }
    void Repeat(Qt::Key key, const QString& text) const {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, text, true);
        QCoreApplication::sendEvent(form.focusWidget(), &event);
    }
    void Press(QKeyCombination key) const { PressKey(form, key); }
    void ClickBox() const { Click(form, box); }
};

class CalculatorFormTest : public FormTest {
  protected:
    using Acts = std::function<void(const Seen&)>;

    /// What the user's acts return; a calculator that they leave open is closed with Escape.
    QString Result(const Acts& acts, TextIn initValue = {}) {
        const User user([&](QDialog& form) {
            acts({form});
            if (form.isVisible()) PressKey(form, Qt::Key_Escape);
        });
        const QString result = ToQString(utils_->Calculate(initValue));
        EXPECT_TRUE(user.HasActed());
        return result;
    }
};

TEST_F(CalculatorFormTest, BothBlocksOfKeysAndTheMouseCountEveryPressOnce) {
    const Acts ways[] = {
        [](const Seen& seen) { seen.Type("12.5*33-2\r\r"); },
        [](const Seen& seen) { seen.Type("12.5*33-2\r\r", Qt::KeypadModifier); },
        [](const Seen& seen) { seen.Type("12.5*33-2  "); },
        [](const Seen& seen) { seen.ClickCaptions("12.5*33-2="), seen.Press(Qt::Key_Enter); },
        [](const Seen& seen) {
            for (const int code : {97, 98, 110, 101, 106, 99, 99, 109, 98, 13, 13}) {
                QMetaObject::invokeMethod(&seen.form, "HookedKeyDown", Q_ARG(int, code));
            }
        },
    };
    for (const Acts& way : ways) EXPECT_EQ(Result(way, u"7"), "410.5");
}

TEST_F(CalculatorFormTest, AKeyThatIsHeldDownPressesItsButtonOnce) {
    EXPECT_EQ(Result([](const Seen& seen) {
                  seen.Repeat(Qt::Key_Return, "\r");  // still held from opening the calculator
                  seen.Type("5");
                  seen.Repeat(Qt::Key_5, "5");
                  seen.Type("+3\r");
                  seen.Repeat(Qt::Key_Return, "\r");
                  seen.Type("\r");
              }),
              "8");
}

TEST_F(CalculatorFormTest, AButtonFlashesWithoutHoldingUpTheKeys) {
    Result([](const Seen& seen) {
        const QColor face = seen.Button(7).palette().color(QPalette::Button);
        seen.Type("7+7+7+7+7+7+7+7+7+7=");
        EXPECT_EQ(seen.box.text(), "70");
        EXPECT_EQ(seen.Button(7).palette().color(QPalette::Button), QColor(Qt::white));
        EXPECT_TRUE(Soon([&] { return seen.Button(7).palette().color(QPalette::Button) == face; }));
    });
}

TEST_F(CalculatorFormTest, TheFocusMovesToTheNextLikelyButtonAndIsToldTheDisplay) {
    Result(
        [](const Seen& seen) {
            const auto told = [&] { return seen.form.focusWidget()->accessibleDescription(); };
            EXPECT_EQ(seen.Focus(), "arrCmd_18");
            EXPECT_EQ(told(), "Display 12.35");
            seen.Type("9/");
            EXPECT_EQ(seen.Focus(), "arrCmd_16");
            EXPECT_EQ(told(), "Display 9");
            seen.Type("0=");
            EXPECT_EQ(seen.Focus(), "arrCmd_18");
            EXPECT_EQ(told(), "Display ERROR");
            seen.ClickBox();
            seen.Type("=");
            EXPECT_EQ(seen.Focus(), "arrCmd_18");
            EXPECT_EQ(seen.Button(10).accessibleName(), "change sign");
            EXPECT_EQ(Find(seen.form, "lblNumDone").accessibleDescription(), "True");
        },
        u"12.345");
}

TEST_F(CalculatorFormTest, TheBoxTakesDigitsOnePointAndEditingKeys) {
    EXPECT_EQ(Result([](const Seen& seen) {
                  seen.ClickBox();
                  seen.Type("1a,2.3.4 \r");
                  EXPECT_EQ(seen.box.text(), "12.34");
                  seen.Press(Qt::Key_Home);
                  seen.Press(Qt::Key_Delete);
                  seen.Press(Qt::Key_End);
                  seen.Press(Qt::Key_Backspace);
                  EXPECT_EQ(seen.box.text(), "2.3");
                  seen.Type("45678901234567");
                  EXPECT_EQ(seen.box.text(), "2.3456789012345");
                  seen.Press(Qt::ControlModifier | Qt::Key_A);
                  seen.Type("9*99999999999999999=\r");
              }),
              "8.99999999999999E+15");
}

TEST_F(CalculatorFormTest, TheClipboardTakesTheNumberAndGivesOne) {
    QClipboard& clipboard = *QApplication::clipboard();
    const auto paste = [&](const Seen& seen, const char* text) {
        clipboard.setText(text);
        seen.Press(Qt::ControlModifier | Qt::Key_V);
    };
    Result(
        [&](const Seen& seen) {
            seen.Press(Qt::ControlModifier | Qt::Key_C);
            EXPECT_EQ(clipboard.text(), "1234.5");
            paste(seen, "$2,000.50\r\n");
            EXPECT_EQ(seen.box.text(), "2000.50");
            paste(seen, "<b>");
            seen.ClickBox();
            paste(seen, "1");
            EXPECT_EQ(seen.box.text(), "2000.501");
            seen.Press(Qt::ControlModifier | Qt::Key_A);
            paste(seen, "7");
            EXPECT_EQ(seen.box.text(), "7");
            seen.Type("/0=");
            seen.Press(Qt::ControlModifier | Qt::Key_C);
            EXPECT_EQ(clipboard.text(), "7");
        },
        u"$1,234.50");
}

TEST_F(CalculatorFormTest, EveryOtherEndReturnsNothing) {
    const Acts ends[] = {
        [](const Seen& seen) { seen.Press(Qt::Key_Escape); },
        [](const Seen& seen) { CloseRequest(seen.form); },
        [](const Seen& seen) { seen.form.reject(); },
        [](const Seen&) { QCoreApplication::exit(); },
    };
    for (const Acts& end : ends) {
        const auto calculate = [&] {
            EXPECT_EQ(Result([&](const Seen& seen) { seen.Type("2+3="), end(seen); }, u"5"), "");
            QCoreApplication::exit();
        };
        QTimer::singleShot(0, calculate);
        QApplication::exec();
    }
}

}  // namespace
}  // namespace halvek
