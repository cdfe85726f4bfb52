// SPDX-License-Identifier: MIT
#include "tests/HelpFile.h"
#include "tests/help/MadeHelpFile.h"
#include "tests/qt/FormTest.h"

#include <halvekutils/base/Utf8.h>

#include <QPrintPreviewWidget>

#include <gmock/gmock.h>

namespace halvek {
namespace {

class HelpViewerTest : public FormTest {
  protected:
    static QWidget& Viewer() { return Window("HelpViewer"); }
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

    /// The page and what has been logged of it
    std::string Told() const { return Page().toPlainText().toStdString() + "|" + TakeLog(); }

    HelpFile help_;
};

TEST_F(HelpViewerTest, OpensEveryFormOfTopicInOneWindowAndLinksAtTheirPlace) {
    Open(200);
    QWidget* const window = &Viewer();
    for (const char16_t* const topic : {u"::/first.htm", u"FIRST.htm", u"::/first.htm>main", u""}) {
        Open(200);
        utils_->ShowHelpByTopic(0, topic, help_.Path().u16string());
        EXPECT_TRUE(Page().toPlainText().startsWith(QStringLiteral("Caf\u00E9 \u20AC 5")));
    }
    ClickLink("Bills");
    EXPECT_GT(Page().verticalScrollBar()->value(), 1000);
    utils_->ShowHelp(0, 100, HelpFile().Path().u16string());
    EXPECT_EQ(&Viewer(), window);
    EXPECT_FALSE(Page().isBackwardAvailable());
}

TEST_F(HelpViewerTest, GivesPaperToPagesWithColoursOnly) {
    const MadeHelpFile made({{"/a.htm", "<body bgcolor=#FFFFFF><a href=b.htm>Link</a>"},
                             {"/b.htm", "<p><a href=a.htm>Link</a>"}});
    const QPalette light = QApplication::palette();
    QPalette dark(Qt::black, Qt::black);
    dark.setColor(QPalette::Link, Qt::white);
    QApplication::setPalette(dark);
    for (const bool isPaper : {true, false}) {
        utils_->ShowHelpByTopic(0, isPaper ? u"a.htm" : u"b.htm", made.Path().u16string());
        EXPECT_TRUE(Page().find(QStringLiteral("Link")));
        const QColor link = Page().textCursor().charFormat().foreground().color();
        EXPECT_EQ(link.lightness() < 100, isPaper);
        EXPECT_EQ(Page().palette().color(QPalette::Base), isPaper ? Qt::white : Qt::black);
        EXPECT_EQ(Page().palette().color(QPalette::Text), isPaper ? Qt::black : Qt::white);
    }
    QApplication::setPalette(light);
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

/// A page that tries everything to leave its file.
MadeHelpFile TryingFile(const std::string& own) {
    const std::string tries =
        "<link rel=stylesheet href='file://" + own + ".css'><style>@import url(" + own +
        ".css);body{background:url(" + own + ")}</style><img src='" + own + "'><img src='file://" +
        own + "'><img src='../../../../" + own +
        "'><img src='ms-its:other.chm::/x.png' alt=Other><iframe src='file:///etc/passwd'></iframe>"
        "<a href='javascript:run()' onclick='run()'>Run</a>";
    return MadeHelpFile({{"/tries.htm", tries},
                         {"/x.hhc",
                          "<li><object type=text/sitemap><param name=Name value=Web>"
                          "<param name=Local value='https://example.org/help'></object>"}});
}

TEST_F(HelpViewerTest, APageGetsNothingFromOutsideItsFile) {
    const std::string own = folder_ / "own.png";
    QImage(3, 3, QImage::Format_RGB32).save(QString::fromStdString(own));
    WriteFile(own + ".css", "p { color: red }");
    const MadeHelpFile made = TryingFile(own);
    EXPECT_TRUE(utils_->ShowHelpByTopic(0, u"tries.htm", made.Path().u16string()));
    EXPECT_EQ(Page().toPlainText().simplified(), QStringLiteral("[Other] file:///etc/passwd Run"));
    EXPECT_FALSE(Page().toHtml().contains(QStringLiteral("<img")));
    EXPECT_FALSE(Page().toHtml().contains(QStringLiteral("background-image")));
    EXPECT_FALSE(Page().toHtml().contains(QStringLiteral("#ff0000")));
    ClickLink("passwd");
    ClickLink("Run");
    EXPECT_TRUE(Find<QLabel>(Viewer(), "lblOutside").text().endsWith("javascript:run()"));
    EXPECT_EQ(Page().documentTitle(), QString());

    // What the page's cleaning would let through, the viewer does not read.
    Open(200);
    const auto widthOf = [](const std::string& name) {
        const auto url = QUrl(QString::fromStdString(name));
        return Page().loadResource(QTextDocument::ImageResource, url).value<QImage>().width();
    };
    EXPECT_EQ(widthOf("dot.gif") + widthOf("/SUB/dot.gif"), 2);
    for (const std::string& name : {own, "file://" + own, std::string("//host/sub/dot.gif"),
                                    std::string("data:image/gif;base64,R0lGODlhAQABAAAAACw=")}) {
        EXPECT_EQ(widthOf(name), 16) << name;  // a missing picture's placeholder
    }
}

TEST_F(HelpViewerTest, AsksTheHostAboutAddressesOutside) {
    const MadeHelpFile made = TryingFile("/none");
    std::string asked;
    desktop_.OnOutsideAddress([&](TextIn address) {
        asked += ToUtf8(address) + ' ';
        return address != u"javascript:run()";
    });
    utils_->ShowHelpByTopic(0, u"tries.htm", made.Path().u16string());
    Activate(Viewer());
    QTreeWidget& contents = Find<QTreeWidget>(Viewer(), "trvContents");
    contents.setFocus();
    contents.setCurrentItem(contents.topLevelItem(0));
    PressKey(Viewer(), Qt::Key_Return);
    EXPECT_FALSE(Find<QLabel>(Viewer(), "lblOutside").isVisible());
    ClickLink("Run");
    EXPECT_TRUE(Find<QLabel>(Viewer(), "lblOutside").isVisible());
    EXPECT_EQ(asked, "https://example.org/help javascript:run() ");
    desktop_.OnOutsideAddress({});
}

TEST_F(HelpViewerTest, PreviewsThePageThatIsShown) {
    Open(200);
    PressKey(Viewer(), Qt::CTRL | Qt::Key_P);
    const auto preview = [] { return Viewer().findChild<QDialog*>("frmPrintPreview"); };
    EXPECT_TRUE(Soon([&] { return preview() != nullptr && preview()->isVisible(); }));
    const auto* const pages = preview()->findChild<QPrintPreviewWidget*>();
    EXPECT_TRUE(Soon([&] { return pages->pageCount() > 10; }));

    // Asked for once more, the viewer stays below; the preview goes with it.
    const auto ask = [&] {
        utils_->ShowHelp(0, 100, help_.Path().u16string());
        EXPECT_EQ(preview()->windowHandle()->transientParent(), Viewer().windowHandle());
    };
    ask();
    const User user([&](QDialog& box) {
        ask();
        PressKey(box, Qt::Key_Escape);
    });
    utils_->Calculate(u"");
    Viewer().close();
    EXPECT_TRUE(preview() == nullptr || !preview()->isVisible());
}

}  // namespace
}  // namespace halvek
