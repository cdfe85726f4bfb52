// SPDX-License-Identifier: MIT
#include "tests/HelpFile.h"
#include "tests/qt/FormTest.h"
#include "tests/qt/Monkey.h"

#include <halvekutils/base/NumericText.h>
#include <halvekutils/core/DebugConsole.h>
#include <halvekutils/currency/AmountText.h>
#include <halvekutils/dialogs/MessageBoxButtons.h>
#include <halvekutils/qt/CurrencyField.h>
#include <halvekutils/qt/CurrencyLineEdit.h>
#include <halvekutils/qt/QtText.h>

#include <QRegularExpression>
#include <QTextBrowser>
#include <QVBoxLayout>

#include <map>

namespace halvek {
namespace {

/// Whatever keys and clicks a dialog gets, it ends in a legal way and leaves no window open.
struct MonkeyTest : FormTest {
    /// @param open  returns how the dialog ended
    /// @param ways  the least number of different endings
    void Play(const char* ownKeys, std::size_t ways,
              const std::function<std::string(Monkey& monkey, int time)>& open) {
        Monkey monkey(20240305, 100'000, ownKeys);
        std::map<std::string, int> ended;
        const QStringList windows = Windows();
        for (int time = 0; !monkey.IsDone(); ++time) {
            ++ended[open(monkey, time)];
            ASSERT_FALSE(HasFailure()) << monkey.Trail();
            ASSERT_EQ(Windows(), windows) << monkey.Trail();
        }
        EXPECT_GE(ended.size(), ways);
    }
    static QStringList Windows() {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QStringList names;
        for (const QWidget* const window : QApplication::topLevelWidgets())
            if (!window->inherits("QTipLabel")) names += window->objectName();
        return names;
    }
};

TEST_F(MonkeyTest, MessageBoxes) {
    const QString prompts[] = {QString("Go on?\r\n").repeated(150), "Go on?", ""};
    Play("BFGJKLMPQTUVWXZ", 10, [&](const Monkey&, int time) {
        const auto set = static_cast<ButtonsChoice>(time % 11);
        const auto answer = utils_->ShowMsgBox(prompts[time % 3], set, mbQuestion, u"Visit");
        auto legal = ButtonSetOf(set).results;
        if (set == mbNoButtons) legal.fill(mbOK);
        EXPECT_TRUE(answer > 0 && std::ranges::count(legal, answer) > 0) << set << answer;
        return std::to_string(answer);
    });
}

TEST_F(MonkeyTest, Calendar) {
    const char16_t* const days[] = {u"12/31/9999", u"3/7/2004", u""};
    Play("T2024", 2, [&](const Monkey&, int time) {
        const auto day = ToQString(utils_->ShowCalendar(-1, -1, -1, days[time % 3]));
        if (day.isEmpty()) return "no day";
        EXPECT_EQ(day, QDate::fromString(day, "MM/dd/yyyy").toString("MM/dd/yyyy"));
        return "day";
    });
}

TEST_F(MonkeyTest, Calculator) {
    Play("0123456789+-*/=./0=", 2, [&](const Monkey&, int time) {
        const auto text = ToQString(utils_->Calculate(time % 2 == 0 ? u"12.345" : u""));
        if (text.isEmpty()) return "nothing";
        // Any text in the box can be edited: "-5", "1E+16" and "ERROR".
        EXPECT_TRUE(QRegularExpression("^[-+.0-9ERO]+$").match(text).hasMatch())
            << text.toStdString();
        return "text";
    });
}

TEST_F(MonkeyTest, ColorPalette) {
    StringArray colors(1, 60);
    for (int i = 1; i <= 60; ++i) colors[i] = i % 7 == 0 ? u"-1" : IntegerText(i * 1000);
    utils_->InitPrefs(colors, 0, 0, 0, 0);
    Play("XYZ", 2, [&](const Monkey&, int) {
        const auto chosen = ToQString(utils_->ShowColor());
        const int i = chosen.section('\t', 1).toInt();
        EXPECT_TRUE(chosen.isEmpty() || (i >= 1 && i <= 58 && i % 7 != 0)) << i;
        EXPECT_TRUE(chosen.isEmpty() || chosen == QString("%1\t%2").arg(i * 1000).arg(i)) << i;
        return chosen.isEmpty() ? "no color" : "color";
    });
}

TEST_F(MonkeyTest, SelectionLists) {
    QString list = "H:";
    QStringList codes;
    for (int i = 0; i < 38; ++i) {
        codes += QChar('a' + i % 26) + (i < 26 ? "" : QString::number(i / 26));
        list += codes.back() + "\tName\t" + (i % 5 == 0 ? "1:" : "0:");
    }
    Play("ABCDE 12 A1,", 2, [&](const Monkey& monkey, int time) {
        const QString before = time % 2 == 0 ? "d,c1" : "";
        std::u16string typed = time % 3 == 0 ? u"b" : u"";
        const bool active = time % 4 > 1;
        const auto chosen = ToQString(
            utils_->ShowSelectionGrid(u"Codes", list, before, -1, -1, -1, nullptr, typed, active));
        EXPECT_EQ(typed, u"");
        if (chosen == "CANCEL" || chosen == before)
            return chosen == before ? "as before" : "CANCEL";
        // A click on the header accepts the typed text as it is.
        for (const QString& code : chosen.split(',', Qt::SkipEmptyParts)) {
            const bool isThere = codes.contains(code) && (!active || codes.indexOf(code) % 5 > 0);
            EXPECT_TRUE(isThere || monkey.LastAct().contains("SelectGridHeader"))
                << chosen.toStdString();
        }
        return chosen.isEmpty() ? "no code" : "codes";
    });
}

TEST_F(MonkeyTest, DebugConsole) {
    utils_->InitUtils(u"", u"", u"", true, u"");
    utils_->ShowInDebug(u"line");
    Play("LINE", 1, [&](Monkey& monkey, int) {
        utils_->ShowInDebug(u"line");
        monkey.PlayWith(Window("frmDebug"));
        const auto text = ToQString(DebugConsole::Current()->Text());
        const QRegularExpression lines("^(<+CLEARED>+)?((line|<+LOG (STARTED|STOPPED)>+)\r\n)*$");
        EXPECT_TRUE(lines.match(text).hasMatch()) << text.toStdString();
        return "closed";
    });
    std::filesystem::remove(machine_.ownFolder / "Error.Log");  // "All goes to file" fills it
}

TEST_F(MonkeyTest, HelpViewer) {
    const HelpFile help(40);
    utils_->ShowHelp(0, 100, help.Path().u16string());
    Play("BILLS", 2, [&](Monkey& monkey, int time) {
        utils_->ShowHelp(0, time % 2 == 0 ? 100 : 200, help.Path().u16string());
        QWidget& viewer = Window("HelpViewer");
        monkey.PlayWith(viewer);
        return Find<QTextBrowser>(viewer, "txtPage").source().path().toLower().toStdString();
    });
}

TEST_F(MonkeyTest, CurrencyFields) {
    QWidget form;
    QVBoxLayout rows(&form);
    QLineEdit plain, amount, from, locked("$1,234.50");
    CurrencyLineEdit to(AmountSign::Signed);
    const std::vector<QLineEdit*> lines = {&plain, &amount, &from, &to, &locked};
    for (QLineEdit* const line : lines) rows.addWidget(line);
    for (QLineEdit* const line : {&amount, &from, &locked}) MakeCurrencyField(line);
    CheckCurrencyRange(&from, &to, u"From", u"To");
    locked.setReadOnly(true);
    Play("0123456789.-+", 1, [&](Monkey& monkey, int time) {
        if (time % 5 == 0) to.setText("$-1,234,567.89");
        form.show();
        monkey.PlayWith(form);
        EXPECT_EQ(locked.text(), "$1,234.50");
        for (QLineEdit* const line : {&amount, &from, static_cast<QLineEdit*>(&to)}) {
            const QString text = line->text();
            const auto bare = BareAmount(text, AmountSign::Signed);
            const bool isShown = text.isEmpty() || text == "0.00" ||
                                 (bare && text == ToQString(u"$" + FormatAmount(*bare)));
            EXPECT_TRUE(isShown || line == form.focusWidget()) << line->y() << text.toStdString();
            EXPECT_TRUE(isShown || IsTypedAmount(text, AmountSign::Signed)) << text.toStdString();
        }
        return form.focusWidget() == &plain ? "left" : "typed";
    });
}

}  // namespace
}  // namespace halvek
