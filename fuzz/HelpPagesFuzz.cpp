// SPDX-License-Identifier: MIT
#include "fuzz/FuzzTarget.h"

#include <halvekutils/help/HelpMarkup.h>
#include <halvekutils/help/HelpText.h>

#include <QAbstractTextDocumentLayout>
#include <QGuiApplication>
#include <QTextDocument>

using namespace halvek;

namespace {

struct File : HelpSurroundings {
    std::u16string Link(std::u16string_view) override { return u"help://file/x"; }
    std::optional<Picture> PictureAt(std::u16string_view written) override {
        if (written != u"a.png") return std::nullopt;
        return Picture{u"help://file/a.png", 100, 50};
    }
    std::u16string StyleAt(std::u16string_view) override { return {}; }
};

// What odd pages are made of, between bars: tags, attributes that do not suit them, and texts that
// are hard to lay out.
constexpr std::u16string_view kTags =
    u"table|tr|td|th|caption|thead|tbody|ul|ol|li|dl|dt|dd|div|p|pre|b|i|h1|sub|sup|span|center|"
    u"nobr|blockquote|font|a|hr|br|img|xmp|noframes|body";
constexpr std::u16string_view kAttributes =
    u"| border=1 width=100% cellpadding=900 cellspacing=77| rowspan=99999| rowspan=7 colspan=3|"
    u" colspan=1000 width=1%| width=900000| start=-5| size=+99| size=-99 color=red|"
    u" align=right dir=rtl| style='float:left;width:50%'|"
    u" style='margin:-9999px;padding:1e9em;text-indent:-9999px'|"
    u" style='line-height:0;font-size:0'| style='line-height:99999%;font-size:99999pt'|"
    u" style='page-break-before:always;white-space:pre-wrap'|"
    u" src=a.png width=99999 height=1| src=a.png align=left height=9999999|"
    u" src=none.png alt='a text'| name=x href='b c.htm#x'| background=a.png bgcolor=red";
constexpr std::u16string_view kTexts =
    u"<frameset><frame src=b.htm>|<style>p{margin:1px|}td{padding:9999999px}</style>|"
    u"<title>a</title>|<script>|<!--|-->|&#769;&#x301;\u0301\u0301\u0301\u0301|"
    u"&nbsp;&shy;&#8238;&#64976;&#65532;|\u093F\u094D\u202E\u05D0\u05D1\U0001F600|"
    u"word word word word word word word word |"
    u"averyveryveryverylongwordwithoutanyblankinitatallaveryveryveryverylongword|\n|<|'>";

/// A page from few bytes: tags not closed or closed twice, texts, and all of it repeated.
std::u16string OddPage(FuzzedDataProvider& input) {
    static const auto tags = Cut(kTags, u'|');
    static const auto attributes = Cut(kAttributes, u'|');
    static const auto texts = Cut(kTexts, u'|');
    constexpr std::size_t kMaxLength = 2'000'000;
    std::u16string page;
    while (input.remaining_bytes() > 0 && page.size() < kMaxLength) {
        // A byte says what kind of piece it is, and how often it is repeated.
        const auto kind = input.ConsumeIntegral<std::uint8_t>();
        std::u16string piece = Picked(input, kind % 6 == 0 ? texts : tags);
        if (kind % 6 == 1) piece = u"</" + piece + u'>';
        if (kind % 6 > 1) piece = u'<' + piece + Picked(input, attributes) + u'>';
        int times = kind < 168 ? 1 : 1 << ((kind - 168) / 6);
        for (; times > 0 && page.size() < kMaxLength; --times) page += piece;
    }
    return page;
}

void NoMessages(QtMsgType, const QMessageLogContext&, const QString&) {}

/// No element or attribute but those that the page's cleaning writes.
void RequireClean(const std::u16string& html) {
    for (const char16_t* const foreign :
         {u"<script", u"<object", u"<iframe", u"onclick", u"file:", u"http:", u"-qt-", u"float"}) {
        Require(html.find(foreign) == html.npos, "a page holds nothing foreign");
    }
}

}  // namespace

void halvek::Check(FuzzedDataProvider& input) {
    static int count = 1;
    static char name[] = "HelpPagesFuzz";
    static char* names[] = {name, nullptr};
    if (count == 1) ::setenv("QT_QPA_PLATFORM", "offscreen", 0);
    static const QGuiApplication application(count, names);
    qInstallMessageHandler(NoMessages);
    const bool isOdd = input.ConsumeIntegralInRange(0, 3) != 0;
    const std::u16string page =
        isOdd ? OddPage(input) : HelpTextOf(input.ConsumeRemainingBytesAsString());
    File file;
    const HelpMarkup markup = CleanedHelpPage(page, file);
    if (isOdd) RequireClean(markup.html);
    QTextDocument document;
    document.setHtml(QString::fromStdU16String(markup.html));
    document.setTextWidth(640);
    Require(document.size().width() >= 0, "a page is laid out");
}
