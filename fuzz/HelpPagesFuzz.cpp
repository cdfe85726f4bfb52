// SPDX-License-Identifier: MIT
#include "fuzz/FuzzTarget.h"
#include "fuzz/OddPage.h"

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
    const std::string page = isOdd ? OddPage(input) : input.ConsumeRemainingBytesAsString();
    File file;
    const HelpMarkup markup = CleanedHelpPage(HelpTextOf(page), file);
    if (isOdd) RequireClean(markup.html);
    QTextDocument document;
    document.setHtml(QString::fromStdU16String(markup.html));
    document.setTextWidth(640);
    Require(document.size().width() >= 0, "a page is laid out");
}
