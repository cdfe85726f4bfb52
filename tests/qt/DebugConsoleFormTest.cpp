// SPDX-License-Identifier: MIT
#include "tests/qt/FormTest.h"

#include <halvekutils/core/DebugConsole.h>

namespace halvek {
namespace {

struct DebugConsoleFormTest : FormTest {
    void SetUp() override {
        Start(true);
        utils_->ClearDebug();
        window_ = &Window("frmDebug");
        text_ = &Find<QPlainTextEdit>(*window_, "txtDebug");
    }
    bool EndsWith(const QString& end) {
        return Soon([&] { return text_->toPlainText().endsWith(end); }) &&
               text_->viewport()->rect().contains(text_->cursorRect());
    }

    QWidget* window_ = nullptr;
    QPlainTextEdit* text_ = nullptr;
};

TEST_F(DebugConsoleFormTest, TheNewestLineShowsHoweverManyOrLongTheyAre) {
    for (int i = 0; i < 5000; ++i) utils_->ShowInDebug(QString::number(i));
    EXPECT_TRUE(EndsWith("\n4998\n4999\n"));
    CloseRequest(*window_);
    utils_->ShowInDebug(QString(3'000'000, 'x'));
    EXPECT_TRUE(window_->isVisible() && EndsWith(" more characters)\n"));
    utils_->ShowInDebug(std::u16string(u"a\0\x1b\tb", 5));
    EXPECT_TRUE(EndsWith("<<<<<CLEARED>>>>>>a<0><27>\tb\n"));
}

TEST_F(DebugConsoleFormTest, DoesNotKeepTheProgramRunning) {
    const auto host = OpenHostWindow(QRect(50, 50, 200, 100));
    utils_->ShowInDebug(u"line");
    QApplication::setQuitOnLastWindowClosed(true);
    QTimer::singleShot(0, [&] { host->close(); });
    QTimer late;
    QObject::connect(&late, &QTimer::timeout, [] { QCoreApplication::exit(1); });
    late.start(kPatience);
    EXPECT_EQ(QApplication::exec(), 0);
    QApplication::setQuitOnLastWindowClosed(false);
}

TEST_F(DebugConsoleFormTest, PaintsEveryLineThoughTheProgramNeverReturnsToItsEvents) {
    EXPECT_TRUE(QTest::qWaitForWindowExposed(window_));
    struct Counter : QObject {
        bool eventFilter(QObject*, QEvent* event) override {
            paints += event->type() == QEvent::Paint ? 1 : 0;
            return false;
        }
        int paints = 0;
    } counter;
    text_->viewport()->installEventFilter(&counter);
    for (int i = 0; i < 100; ++i) utils_->ShowInDebug(QString::number(i));
    EXPECT_GE(counter.paints, 100);
    EXPECT_TRUE(text_->viewport()->rect().contains(text_->cursorRect()));
}

TEST_F(DebugConsoleFormTest, ItIsKeptOnTopSearchedAndSaved) {
    utils_->ShowInDebug(u"one two");
    Activate(*window_);
    Click(*window_, Find(*window_, "Check1"));
    EXPECT_TRUE(window_->isVisible() && DebugConsole::Current()->KeptOnTop());
    PressKey(*window_, Qt::CTRL | Qt::Key_F);
    Type(*window_, "TWO");
    utils_->ShowInDebug(u"three");
    EXPECT_EQ(text_->textCursor().selectedText(), "two");
    Click(*window_, Find(*window_, "Command1"));
    EXPECT_TRUE(Find<QLabel>(*window_, "lblStatus").text().endsWith("/DEBUG.log"));
}

}  // namespace
}  // namespace halvek
