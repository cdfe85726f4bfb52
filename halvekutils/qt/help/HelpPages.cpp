// SPDX-License-Identifier: MIT
#include <halvekutils/base/CaseFolding.h>
#include <halvekutils/base/Utf8.h>
#include <halvekutils/help/HelpMarkup.h>
#include <halvekutils/platform/Guard.h>
#include <halvekutils/qt/QtText.h>
#include <halvekutils/qt/help/HelpPages.h>

#include <QBuffer>
#include <QByteArray>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QHash>
#include <QImageReader>
#include <QStringDecoder>
#include <QStringList>

#include <algorithm>

namespace halvek {

namespace {

constexpr const char16_t* kPageEndings[] = {u".htm", u".html", u".xhtml", u".xht"};
constexpr const char16_t* kPictureEndings[] = {u".png", u".gif", u".jpg", u".jpeg", u".bmp"};
// A vector picture may name files of the machine and other pictures without end.
constexpr const char* kPictureFormats[] = {"png", "gif", "jpeg", "bmp", "ico"};
constexpr qint64 kMaxPixels = 16'000'000;

template <std::size_t n>
bool EndsInOneOf(std::u16string_view path, const char16_t* const (&endings)[n]) {
    return std::ranges::any_of(
        endings, [path](std::u16string_view ending) { return EndsFolded(path, ending); });
}

QString Text(const char* text) {
    return QCoreApplication::translate("HelpViewer", text);
}

HelpPage Page(const QString& heading, const QStringList& paragraphs) {
    QString html = QStringLiteral("<html><head><title>%1</title></head><body><h2>%1</h2>")
                       .arg(heading.toHtmlEscaped());
    for (const QString& paragraph : paragraphs) {
        html += QStringLiteral("<p>") + paragraph.toHtmlEscaped() + QStringLiteral("</p>");
    }
    return {html + QStringLiteral("</body></html>"), false};
}

QString FileName(const CompiledHelp& help) {
    return ToQString(FromUtf8(help.File().filename().native()));
}

std::u16string Encoded(const QUrl& address) {
    return address.toString(QUrl::FullyEncoded).toStdU16String();
}

/// A reader of the picture in a buffer; none for a kind that is not shown.
bool Open(QImageReader& reader, QBuffer& buffer) {
    buffer.open(QIODevice::ReadOnly);
    const QByteArray format = QImageReader::imageFormat(&buffer);
    buffer.seek(0);
    reader.setDevice(&buffer);
    return std::ranges::any_of(kPictureFormats, [&](const char* it) { return format == it; });
}

/// What a page asks of the file that holds it.
class Surroundings : public HelpSurroundings {
  public:
    Surroundings(CompiledHelp& help, const std::u16string& page, const QUrl& root)
        : help_(help), page_(page), root_(root) {
        sinceStart_.start();
    }

    std::u16string Link(std::u16string_view written) override {
        auto topic = help_.Resolve(written, page_);
        if (!topic) return std::u16string(written);
        if (topic->path.empty()) topic->path = page_;
        return Encoded(HelpAddressOf(root_, *topic));
    }

    std::optional<Picture> PictureAt(std::u16string_view written) override {
        const auto topic = help_.Resolve(written, page_);
        if (!topic || !help_.Has(topic->path)) return std::nullopt;
        const QSize size = SizeOf(topic->path);
        if (size.isEmpty()) return std::nullopt;
        return Picture{Encoded(HelpAddressOf(root_, {topic->path, {}})), size.width(),
                       size.height()};
    }

    std::u16string StyleAt(std::u16string_view written) override {
        const auto topic = help_.Resolve(written, page_);
        if (!topic || !help_.Has(topic->path)) return {};
        return Quietly(std::u16string(), [&] { return help_.TextOf(topic->path); });
    }

  private:
    /// Each picture is read once, and for one second in all.
    QSize SizeOf(const std::u16string& path) {
        constexpr qint64 kMaxTime = 1000;
        const QString key = ToQString(path);
        const auto known = sizes_.constFind(key);
        if (known != sizes_.constEnd()) return *known;
        if (sinceStart_.elapsed() > kMaxTime) return {};
        const QSize size = Quietly(QSize(), [&] { return PictureSizeOf(help_.Read(path)); });
        sizes_.insert(key, size);
        return size;
    }

    CompiledHelp& help_;
    const std::u16string& page_;
    const QUrl& root_;
    QHash<QString, QSize> sizes_;
    QElapsedTimer sinceStart_;
};

/// What was left out stands where the reader meets it.
HelpPage WithNotes(const HelpMarkup& markup) {
    const auto note = [](const QString& text) {
        return QStringLiteral("<hr><p><i>%1</i></p>").arg(text.toHtmlEscaped());
    };
    QString html = ToQString(markup.html);
    if (markup.isPlain) {
        html.prepend(note(Text("This page is too intricate to be laid out. Its text follows.")));
    }
    if (markup.isCut) {
        html += note(Text("The page is longer. What follows is not shown."));
    }
    return {html, markup.hasColours};
}

}  // namespace

QUrl HelpAddressOf(const QUrl& root, const HelpTopic& topic) {
    QUrl address = root;
    address.setPath(ToQString(topic.path), QUrl::DecodedMode);
    if (!topic.anchor.empty()) address.setFragment(ToQString(topic.anchor), QUrl::DecodedMode);
    return address;
}

HelpPage PageOf(CompiledHelp& help, TextIn path, const QUrl& root) {
    const std::u16string page = path.Str();
    Surroundings surroundings(help, page, root);
    if (EndsInOneOf(path, kPictureEndings)) {
        return WithNotes(CleanedHelpPage(u"<img src=\"" + page + u"\">", surroundings));
    }
    const std::u16string text = help.TextOf(path);
    if (EndsInOneOf(path, kPageEndings)) return WithNotes(CleanedHelpPage(text, surroundings));
    const std::u16string escaped = ToQString(text).toHtmlEscaped().toStdU16String();
    return WithNotes(CleanedHelpPage(u"<pre>" + escaped + u"</pre>", surroundings));
}

HelpPage MissingTopicPage(const CompiledHelp& help, TextIn path) {
    return Page(Text("This topic is missing"),
                {Text("The help file %1 holds no page %2.").arg(FileName(help), ToQString(path)),
                 Text("Look for the topic in the contents, or go back.")});
}

HelpPage MissingContextPage(const CompiledHelp& help, TextIn contextId) {
    return Page(Text("This topic is missing"),
                {Text("The help file %1 holds no topic with the number %2.")
                     .arg(FileName(help), ToQString(contextId)),
                 Text("Look for the topic in the contents.")});
}

HelpPage UnreadablePage(TextIn what) {
    return Page(Text("This help cannot be read"),
                {Text("The file is damaged or is no help file. It has to be installed again."),
                 ToQString(what)});
}

QSize PictureSizeOf(const std::string& bytes) {
    QByteArray data = QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size()));
    QBuffer buffer(&data);
    QImageReader reader;
    if (!Open(reader, buffer)) return {};
    const QSize size = reader.size();
    const bool isFit = size.isValid() && qint64{size.width()} * size.height() <= kMaxPixels;
    return isFit ? size : QSize();
}

QImage PictureOf(const std::string& bytes, const QSize& most) {
    const QSize size = PictureSizeOf(bytes);
    if (size.isEmpty()) return {};
    QByteArray data = QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size()));
    QBuffer buffer(&data);
    QImageReader reader;
    Open(reader, buffer);
    const bool isLarger = size.width() > most.width() || size.height() > most.height();
    if (isLarger) reader.setScaledSize(size.scaled(most, Qt::KeepAspectRatio));
    return reader.read();
}

std::optional<std::u16string> DecodedHelpText(std::string_view charset, std::string_view bytes) {
    QStringDecoder decoder(std::string(charset).c_str());
    if (!decoder.isValid()) return std::nullopt;
    const QString text =
        decoder(QByteArrayView(bytes.data(), static_cast<qsizetype>(bytes.size())));
    return text.toStdU16String();
}

}  // namespace halvek
