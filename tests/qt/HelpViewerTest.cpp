#include "tests/HelpFile.h"
#include "tests/qt/FormTest.h"

#include <QImage>
#include <QLabel>
#include <QScrollBar>
#include <QTextBrowser>
#include <QTreeWidget>

#include <filesystem>
#include <string>

namespace halvek {
namespace {

class HelpViewerTest : public FormTest {
  protected:
    static HelpFile& Help() {
        static HelpFile help;
        return help;
    }
    static std::u16string Path() { return Help().Path().u16string(); }

    static QWidget& Viewer() {
        for (QWidget* const window : QApplication::topLevelWidgets()) {
            if (window->objectName() == QLatin1String("HelpViewer")) return *window;
        }
        qFatal("there is no help viewer");
    }
    static QTextBrowser& Page() { return Find<QTextBrowser>(Viewer(), "txtPage"); }
    static bool Shows(const char* text) {
        return Page().toPlainText().contains(QLatin1String(text));
    }

    static void ClickLink(const char* text) {
        Page().moveCursor(QTextCursor::Start);
        EXPECT_TRUE(Page().find(QLatin1String(text)));
        const QPoint end = Page().viewport()->mapTo(&Viewer(), Page().cursorRect().center());
        QTest::mouseClick(Viewer().windowHandle(), Qt::LeftButton, {}, end - QPoint(5, 0));
    }

    /// Takes the only line of the error log.
    std::string TakeLogged() {
        const std::string log = ReadFile(machine_.ownFolder / "Error.Log");
        std::filesystem::remove(machine_.ownFolder / "Error.Log");
        return log;
    }
};

TEST_F(HelpViewerTest, OpensTopicsInOneWindow) {
    EXPECT_TRUE(utils_->ShowHelp(0, 200, Path()));
    QWidget& window = Viewer();
    EXPECT_EQ(window.windowTitle(), "Desk help");
    EXPECT_TRUE(Shows("line 7919"));
    for (const char16_t* const topic :
         {u"::/welcome.htm", u"welcome.HTM", u"::/welcome.htm>main", u""}) {
        EXPECT_TRUE(utils_->ShowHelpByTopic(0, u"::/sub/billing.htm", Path()));
        EXPECT_TRUE(utils_->ShowHelpByTopic(0, topic, Path()));
        EXPECT_TRUE(Page().toPlainText().startsWith(QStringLiteral("Caf\u00E9 \u20AC 5")));
        EXPECT_EQ(Find<QTreeWidget>(window, "trvContents").currentItem()->text(0), "Welcome");
    }
    const HelpFile other;
    window.close();
    EXPECT_TRUE(utils_->ShowHelp(0, 100, other.Path().u16string()));
    EXPECT_EQ(&Viewer(), &window);
    EXPECT_TRUE(window.isVisible());
    EXPECT_FALSE(Page().isBackwardAvailable());
}

TEST_F(HelpViewerTest, FollowsLinksInsideTheFileOnly) {
    utils_->ShowHelp(0, 100, Path());
    Page().find(QStringLiteral("Caf"));
    EXPECT_EQ(Page().textCursor().charFormat().foreground().color(), QColor(0x10, 0x20, 0x30));
    ClickLink("Bills");
    EXPECT_TRUE(Shows("line 7919"));
    EXPECT_GT(Page().verticalScrollBar()->value(), 1000);
    PressKey(Viewer(), Qt::ALT | Qt::Key_Left);
    EXPECT_TRUE(Shows("Caf"));
    ClickLink("Web");
    EXPECT_TRUE(Shows("Caf"));
    EXPECT_TRUE(Find<QLabel>(Viewer(), "lblOutside").text().endsWith("http://example.org/x"));
}

TEST_F(HelpViewerTest, ServesNothingButTheFile) {
    QImage(3, 3, QImage::Format_RGB32).save(QString::fromStdString(folder_ / "own.png"));
    WriteFile(folder_ / "own.css", "p { color: red }");
    utils_->ShowHelpByTopic(0, u"sub/billing.htm", Path());
    const auto picture = [](const QString& name) {
        return Page().loadResource(QTextDocument::ImageResource, QUrl(name)).value<QImage>();
    };
    EXPECT_EQ(picture("dot.gif").pixelColor(0, 0), QColor(Qt::red));
    EXPECT_EQ(picture("/SUB/dot.gif").size(), QSize(1, 1));
    const QString own = QString::fromStdString(folder_ / "own.png");
    for (const QString& name :
         {own, "file://" + own, QStringLiteral("/gone.png"), QStringLiteral("//host/sub/dot.gif"),
          QStringLiteral("http://x/y.png"),
          QStringLiteral("data:image/gif;base64,R0lGODlhAQABAAAAACw=")}) {
        EXPECT_EQ(picture(name).width(), 16) << qPrintable(name);  // stands for a missing one
    }
    const QUrl style("file://" + QString::fromStdString(folder_ / "own.css"));
    EXPECT_EQ(Page().loadResource(QTextDocument::StyleSheetResource, style).toString(), " ");
}

TEST_F(HelpViewerTest, TellsWhatIsMissingOrDamaged) {
    EXPECT_TRUE(utils_->ShowHelpByTopic(0, u"::/none.htm", Path()));
    EXPECT_TRUE(Shows("/none.htm"));
    EXPECT_NE(TakeLogged().find("Error in Utils.ShowHelpByTopic File not found: "),
              std::string::npos);
    EXPECT_TRUE(utils_->ShowHelp(0, 4711, Path()));
    EXPECT_TRUE(Shows("4711"));
    EXPECT_NE(TakeLogged().find("context number 4711"), std::string::npos);
    const auto file = Help().Beside("cut.chm", ReadFile(Help().Path()).substr(0, 3000));
    for (int i = 0; i < 2; ++i) {
        EXPECT_TRUE(utils_->ShowHelp(0, 100, file.u16string()));
        EXPECT_TRUE(Shows("cut.chm: the file is cut off or damaged"));
        EXPECT_NE(TakeLogged().find("Error in Utils.ShowHelp Device error: "), std::string::npos);
    }
}

TEST_F(HelpViewerTest, FindsAndZoomsByTheKeyboard) {
    utils_->ShowHelp(0, 200, Path());
    PressKey(Viewer(), Qt::CTRL | Qt::Key_F);
    for (const char digit : {'7', '9', '1', '9', '0'}) {
        QTest::keyClick(Viewer().windowHandle(), digit);
    }
    EXPECT_EQ(Page().textCursor().selectedText(), "79190");
    const int first = Page().textCursor().position();
    PressKey(Viewer(), Qt::Key_F3);
    EXPECT_GT(Page().textCursor().position(), first);
    PressKey(Viewer(), Qt::SHIFT | Qt::Key_F3);
    EXPECT_EQ(Page().textCursor().position(), first);
    const double ordinary = Page().font().pointSizeF();
    PressKey(Viewer(), Qt::CTRL | Qt::Key_Plus);
    EXPECT_GT(Page().font().pointSizeF(), ordinary);
    PressKey(Viewer(), Qt::CTRL | Qt::Key_0);
    EXPECT_EQ(Page().font().pointSizeF(), ordinary);
}

TEST_F(HelpViewerTest, StaysUsableBesideModalDialogs) {
    for (const bool openBefore : {true, false}) {
        if (openBefore) utils_->ShowHelp(0, 100, Path());
        const User user([&](QDialog& box) {
            if (!openBefore) utils_->ShowHelp(0, 100, Path());
            EXPECT_TRUE(Soon([] { return Viewer().windowHandle()->isExposed(); }));
            Click(Viewer(), Find(Viewer(), "cmdFind"));
            EXPECT_TRUE(Find(Viewer(), "txtFind").isVisible()) << openBefore;
            PressKey(box, Qt::Key_O);
        });
        utils_->ShowMsgBox(u"Post the payment?", mbOkOnly, mbQuestion, u"");
        EXPECT_TRUE(Viewer().isVisible());
        Viewer().close();
    }
}

}  // namespace
}  // namespace halvek
