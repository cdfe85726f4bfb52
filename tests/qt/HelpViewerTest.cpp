// SPDX-License-Identifier: MIT
#include "tests/HelpFile.h"
#include "tests/qt/FormTest.h"

#include <QLabel>
#include <QScrollBar>
#include <QTextBrowser>
#include <QToolButton>

#include <gmock/gmock.h>

namespace halvek {
namespace {

class HelpViewerTest : public FormTest {
  protected:
    static QWidget& Viewer() {
        for (QWidget* const window : QApplication::topLevelWidgets()) {
            if (window->objectName() == QLatin1String("HelpViewer")) return *window;
        }
        qFatal("there is no help viewer");
    }
    static QTextBrowser& Page() { return Find<QTextBrowser>(Viewer(), "txtPage"); }

    void Open(std::int32_t number) {
        EXPECT_TRUE(utils_->ShowHelp(0, number, help_.Path().u16string()));
        EXPECT_TRUE(Soon([] { return Viewer().isActiveWindow(); }));
    }

    static void ClickLink(const char* text) {
        EXPECT_TRUE(Page().find(QLatin1String(text)));
        const QPoint end = Page().viewport()->mapTo(&Viewer(), Page().cursorRect().center());
        QTest::mouseClick(Viewer().windowHandle(), Qt::LeftButton, {}, end - QPoint(5, 0));
    }

    /// The page; clears the log.
    std::string Told() {
        const auto log = machine_.ownFolder / "Error.Log";
        const std::string logged = ReadFile(log);
        std::filesystem::remove(log);
        return Page().toPlainText().toStdString() + "|" + logged;
    }

    HelpFile help_;
};

TEST_F(HelpViewerTest, OpensEveryFormOfTopicInOneWindow) {
    Open(200);
    QWidget* const window = &Viewer();
    for (const char16_t* const topic : {u"::/first.htm", u"FIRST.htm", u"::/first.htm>main", u""}) {
        Open(200);
        utils_->ShowHelpByTopic(0, topic, help_.Path().u16string());
        EXPECT_TRUE(Page().toPlainText().startsWith(QStringLiteral("Caf\u00E9 \u20AC 5")));
    }
    utils_->ShowHelp(0, 100, HelpFile().Path().u16string());
    EXPECT_EQ(&Viewer(), window);
    EXPECT_FALSE(Page().isBackwardAvailable());
}

TEST_F(HelpViewerTest, FollowsLinksInsideTheFileOnly) {
    Open(100);
    ClickLink("Bills");
    EXPECT_GT(Page().verticalScrollBar()->value(), 1000);
    PressKey(Viewer(), Qt::ALT | Qt::Key_Left);
    ClickLink("Web");
    EXPECT_TRUE(Find<QLabel>(Viewer(), "lblOutside").text().endsWith("http://example.org/x"));
}

TEST_F(HelpViewerTest, ShowsLinksOnPaperOnADarkDesktopToo) {
    const QPalette light = QApplication::palette();
    QPalette dark = light;
    dark.setColor(QPalette::Link, Qt::white);
    QApplication::setPalette(dark);
    Open(100);
    EXPECT_TRUE(Page().find(QStringLiteral("Bills")));
    EXPECT_LT(Page().textCursor().charFormat().foreground().color().lightness(), 100);
    QApplication::setPalette(light);
}

TEST_F(HelpViewerTest, ServesNothingButTheFile) {
    QImage(3, 3, QImage::Format_RGB32).save(QString::fromStdString(folder_ / "own.png"));
    const QString own = QString::fromStdString(folder_ / "own.png");
    Open(200);
    const auto widthOf = [](const QString& name) {
        return Page().loadResource(QTextDocument::ImageResource, name).value<QImage>().width();
    };
    EXPECT_EQ(widthOf("dot.gif") + widthOf("/SUB/dot.gif"), 2);
    for (const QString& name : {own, "file://" + own, QString("//host/sub/dot.gif"),
                                QString("data:image/gif;base64,R0lGODlhAQABAAAAACw=")}) {
        EXPECT_EQ(widthOf(name), 16) << qPrintable(name);  // a missing picture's placeholder
    }
}

TEST_F(HelpViewerTest, TellsWhatIsMissingOrDamaged) {
    utils_->ShowHelpByTopic(0, u"::/none.htm", help_.Path().u16string());
    EXPECT_THAT(Told(), testing::ContainsRegex("/none.htm.*[|].*ShowHelpByTopic File not found: "));
    Open(4711);
    EXPECT_THAT(Told(), testing::ContainsRegex("4711.*[|].*ShowHelp File not found: .* 4711"));
    const auto bad = help_.Beside(ReadFile(help_.Path()).substr(0, 3000));
    EXPECT_TRUE(utils_->ShowHelp(0, 100, bad.u16string()));
    EXPECT_THAT(Told(),
                testing::ContainsRegex("bad.chm: the file is cut off.*[|].*Device error: "));
}

TEST_F(HelpViewerTest, StaysUsableBesideModalDialogs) {
    for (const bool openBefore : {true, false}) {
        if (openBefore) Open(100);
        const User user([&](QDialog& box) {
            if (!openBefore) Open(100);
            Click(Viewer(), Find(Viewer(), "cmdFind"));
            const User again([&](QDialog& upper) {
                EXPECT_TRUE(Find(Viewer(), "txtFind").isVisible()) << openBefore;
                PressKey(upper, Qt::Key_O);
            });
            utils_->ShowMsgBox(u"Really?", mbOkOnly, mbQuestion, u"");
            PressKey(Viewer(), Qt::Key_Escape);
            EXPECT_FALSE(Find(Viewer(), "txtFind").isVisible());
            PressKey(box, Qt::Key_O);
        });
        utils_->ShowMsgBox(u"Post the payment?", mbOkOnly, mbQuestion, u"");
        Viewer().close();
    }
}

TEST_F(HelpViewerTest, CutsNoToolInANarrowWindow) {
    Open(100);
    for (const int width : {1200, 420}) {
        Viewer().resize(width, 400);
        for (const QToolButton* const tool : Viewer().findChildren<QToolButton*>()) {
            if (!tool->isVisible() || tool->defaultAction() == nullptr) continue;
            const auto fits = [tool] { return tool->width() >= tool->sizeHint().width(); };
            EXPECT_TRUE(Soon(fits)) << width << tool->text().toStdString();
        }
        const QToolButton& find = Find<QToolButton>(Viewer(), "cmdFind");
        EXPECT_EQ(find.toolButtonStyle() == Qt::ToolButtonIconOnly, width == 420);
    }
}

}  // namespace
}  // namespace halvek
