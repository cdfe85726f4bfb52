// SPDX-License-Identifier: MIT
#include <halvekutils/base/CaseFolding.h>
#include <halvekutils/base/Utf8.h>
#include <halvekutils/help/HelpText.h>
#include <halvekutils/qt/QtText.h>
#include <halvekutils/qt/help/HelpPages.h>

#include <QBuffer>
#include <QByteArray>
#include <QCoreApplication>
#include <QImageReader>
#include <QStringList>

#include <algorithm>
#include <string>
#include <string_view>

namespace halvek {

namespace {

constexpr const char16_t* kPageEndings[] = {u".htm", u".html", u".xhtml", u".xht"};
constexpr const char16_t* kPictureEndings[] = {u".png",  u".gif", u".jpg",
                                               u".jpeg", u".bmp", u".svg"};

template <std::size_t n>
bool EndsInOneOf(std::u16string_view path, const char16_t* const (&endings)[n]) {
    return std::ranges::any_of(
        endings, [path](std::u16string_view ending) { return EndsFolded(path, ending); });
}

QString Text(const char* text) {
    return QCoreApplication::translate("HelpViewer", text);
}

QString Page(const QString& heading, const QStringList& paragraphs) {
    QString html = QStringLiteral("<html><head><title>%1</title></head><body><h2>%1</h2>")
                       .arg(heading.toHtmlEscaped());
    for (const QString& paragraph : paragraphs) {
        html += QStringLiteral("<p>") + paragraph.toHtmlEscaped() + QStringLiteral("</p>");
    }
    return html + QStringLiteral("</body></html>");
}

QString FileName(const CompiledHelp& help) {
    return ToQString(FromUtf8(help.File().filename().native()));
}

}  // namespace

QString PageOf(CompiledHelp& help, TextIn path) {
    if (EndsInOneOf(path, kPictureEndings)) {
        return QStringLiteral("<html><body><img src=\"%1\"></body></html>")
            .arg(ToQString(path).toHtmlEscaped());
    }
    const std::u16string text = HelpTextOf(help.Read(path));
    if (EndsInOneOf(path, kPageEndings)) {
        return QStringLiteral("<!-- -->") + ToQString(text);
    }
    return QStringLiteral("<html><body><pre>") + ToQString(text).toHtmlEscaped() +
           QStringLiteral("</pre></body></html>");
}

QString MissingTopicPage(const CompiledHelp& help, TextIn path) {
    return Page(Text("This topic is missing"),
                {Text("The help file %1 holds no page %2.").arg(FileName(help), ToQString(path)),
                 Text("Look for the topic in the contents, or go back.")});
}

QString MissingContextPage(const CompiledHelp& help, TextIn contextId) {
    return Page(Text("This topic is missing"),
                {Text("The help file %1 holds no topic with the number %2.")
                     .arg(FileName(help), ToQString(contextId)),
                 Text("Look for the topic in the contents.")});
}

QString UnreadablePage(TextIn what) {
    return Page(Text("This help cannot be read"),
                {Text("The file is damaged or is no help file. It has to be installed again."),
                 ToQString(what)});
}

QImage PictureOf(const std::string& bytes) {
    constexpr qint64 kMaxPixels = 16'000'000;
    QByteArray data = QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size()));
    QBuffer buffer(&data);
    QImageReader reader(&buffer);
    const QSize size = reader.size();
    if (!size.isValid() || qint64{size.width()} * size.height() > kMaxPixels) return {};
    return reader.read();
}

}  // namespace halvek
