// SPDX-License-Identifier: MIT
#include "tests/qt/FormTest.h"
#include "tests/qt/Monkey.h"
#include "tests/stage/Calls.h"

#include <halvekutils/currency/AmountText.h>
#include <halvekutils/qt/CurrencyField.h>
#include <halvekutils/qt/CurrencyLineEdit.h>
#include <halvekutils/qt/QtText.h>

#include <QRegularExpression>
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
        QStringList windows;  // the console and the viewer of the first time are kept
        for (int time = 0; !monkey.IsDone(); ++time) {
            ++ended[open(monkey, time)];
            ASSERT_FALSE(HasFailure()) << monkey.Trail();
            if (time == 0) windows = Windows();
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

    /// Plays with the stage's calls whose names begin with `kind`.
    void PlayCalls(const char* kind, const char* ownKeys, std::size_t ways) {
        std::vector<const Call*> calls;
        for (const Call& call : Calls())
            if (call.name.startsWith(kind) && !call.legal.isEmpty()) calls.push_back(&call);
        Play(ownKeys, ways, [&](Monkey& monkey, int time) {
            const Call& call = *calls[static_cast<std::size_t>(time) % calls.size()];
            QWidget owner;
            const QString given = call.open(owner);
            const QRegularExpression legal("^(" + call.legal + ")$");
            // A click on the header accepts the typed text as it is.
            EXPECT_TRUE(legal.match(given).hasMatch() ||
                        monkey.LastAct().contains("SelectGridHeader"))
                << call.name.toStdString() << " gave " << given.toStdString();
            return given.toStdString();
        });
        std::filesystem::remove(machine_.ownFolder / "Error.Log");  // the console may fill it
    }
};

TEST_F(MonkeyTest, MessageBoxes) {
    PlayCalls("box", "BFGJKLMPQTUVWXZ", 10);
}

TEST_F(MonkeyTest, Calendar) {
    PlayCalls("calendar", "T2024", 2);
}

TEST_F(MonkeyTest, Calculator) {
    PlayCalls("calculator", "0123456789+-*/=./0=", 2);
}

TEST_F(MonkeyTest, ColorPalette) {
    PlayCalls("palette", "XYZ", 2);
}

TEST_F(MonkeyTest, SelectionLists) {
    PlayCalls("list", "ABCDEMPSW 12 A1,", 2);
}

TEST_F(MonkeyTest, DebugConsole) {
    PlayCalls("console", "LINE", 2);
}

TEST_F(MonkeyTest, HelpViewer) {
    PlayCalls("help", "BILLS", 2);
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
