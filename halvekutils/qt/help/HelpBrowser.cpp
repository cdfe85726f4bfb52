// SPDX-License-Identifier: MIT
#include <halvekutils/base/RuntimeError.h>
#include <halvekutils/help/HelpText.h>
#include <halvekutils/qt/QtText.h>
#include <halvekutils/qt/help/HelpBrowser.h>
#include <halvekutils/qt/help/HelpMarkup.h>
#include <halvekutils/qt/help/HelpPages.h>
#include <halvekutils/qt/helpers/EventGuard.h>
#include <halvekutils/qt/helpers/InputMethodRefusal.h>
#include <halvekutils/qt/helpers/Metrics.h>

#include <QApplication>
#include <QPalette>
#include <QScrollBar>
#include <QStyle>
#include <QTextBlock>
#include <QTextCursor>
#include <QUrlQuery>
#include <QWheelEvent>

#include <utility>
#include <vector>

namespace halvek {

namespace {

constexpr double kPageMargin = 12;
constexpr qint64 kMaxPixelsOnPage = 64'000'000;

QString ContextKey() {
    return QStringLiteral("context");
}

/// Pages are written for black on white.
QPalette PaperPalette(QPalette palette) {
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Text, Qt::black);
    return palette;
}

/// The text engine takes the colour of links from the desktop, which may be dark.
QString PaperStyle() {
    return QStringLiteral("a:link { color: #004AAD }");
}

}  // namespace

HelpBrowser::HelpBrowser(QWidget* parent) : QTextBrowser(parent) {
    new InputMethodRefusal(*this);
    setPalette(PaperPalette(palette()));
    setOpenLinks(false);
    setUndoRedoEnabled(false);
    document()->setDocumentMargin(kPageMargin);
    document()->setDefaultStyleSheet(PaperStyle());
}

HelpBrowser::~HelpBrowser() = default;

void HelpBrowser::SetHelp(std::shared_ptr<CompiledHelp> help, const std::u16string& fault) {
    help_ = std::move(help);
    fault_ = fault;
    ++fileNumber_;
    isFirstPage_ = true;
    if (help_ == nullptr) setSource(Root());
}

QUrl HelpBrowser::Root() const {
    return QUrl(QStringLiteral("help://file%1/").arg(fileNumber_));
}

QUrl HelpBrowser::AddressOf(const HelpTopic& topic) const {
    QUrl address = Root();
    address.setPath(ToQString(topic.path), QUrl::DecodedMode);
    if (!topic.anchor.empty()) address.setFragment(ToQString(topic.anchor), QUrl::DecodedMode);
    return address;
}

bool HelpBrowser::IsInside(const QUrl& address) const {
    const QUrl root = Root();
    return address.scheme() == root.scheme() && address.authority() == root.authority();
}

void HelpBrowser::ShowMissingContext(std::int32_t contextId) {
    QUrlQuery query;
    query.addQueryItem(ContextKey(), QString::number(contextId));
    QUrl address = Root();
    address.setQuery(query);
    setSource(address);
}

// Never returns nothing: the text engine would then look for the name among the machine's own
// files; for a picture it does so even when the result is not a picture.
QVariant HelpBrowser::loadResource(int type, const QUrl& name) {
    const QUrl address = source().resolved(name);
    switch (type) {
        case QTextDocument::HtmlResource:
            return PageAt(address);
        case QTextDocument::ImageResource:
            return PictureAt(address);
        case QTextDocument::StyleSheetResource:
            return StyleAt(address);
        default:
            return QByteArray("");
    }
}

QString HelpBrowser::PageAt(const QUrl& address) {
    pixelsLeft_ = kMaxPixelsOnPage;
    if (help_ == nullptr) return UnreadablePage(fault_);
    const QString context = QUrlQuery(address).queryItemValue(ContextKey());
    if (!context.isEmpty()) return MissingContextPage(*help_, context);
    const QString path = address.path(QUrl::FullyDecoded);
    if (!IsInside(address) || !help_->Has(path)) return MissingTopicPage(*help_, path);
    QString page = UnreadablePage(u"");
    GuardEvent(u"HelpBrowser.PageAt", [&] {
        try {
            page = SanitizedHtml(PageOf(*help_, path));
        } catch (const std::exception& caught) {
            page = UnreadablePage(AsRuntimeError(caught).Description());
            throw;
        }
    });
    return page;
}

QImage HelpBrowser::PictureAt(const QUrl& address) {
    QImage picture;
    const QString path = address.path(QUrl::FullyDecoded);
    if (help_ != nullptr && IsInside(address) && help_->Has(path) && pixelsLeft_ > 0) {
        picture = Quietly(QImage(), [&] { return PictureOf(help_->Read(path)); });
        pixelsLeft_ -= qint64{picture.width()} * picture.height();
    }
    if (!picture.isNull()) return picture;
    return style()->standardIcon(QStyle::SP_FileIcon).pixmap(16).toImage();
}

QString HelpBrowser::StyleAt(const QUrl& address) {
    const QString path = address.path(QUrl::FullyDecoded);
    if (help_ == nullptr || !IsInside(address) || !help_->Has(path)) return QStringLiteral(" ");
    return Quietly(QStringLiteral(" "),
                   [&] { return SanitizedHtml(ToQString(HelpTextOf(help_->Read(path)))); });
}

void HelpBrowser::doSetSource(const QUrl& name, QTextDocument::ResourceType type) {
    QTextBrowser::doSetSource(name, type);
    if (std::exchange(isFirstPage_, false)) clearHistory();
    Settle();
    if (source().hasFragment()) scrollToAnchor(source().fragment(QUrl::FullyDecoded));
}

void HelpBrowser::backward() {
    QTextBrowser::backward();
    Settle();
}

void HelpBrowser::forward() {
    QTextBrowser::forward();
    Settle();
}

void HelpBrowser::reload() {
    const double place = ScrolledTo();
    QTextBrowser::reload();
    ScrollTo(place);
    Settle();
}

/// How far down the page is scrolled, from 0 to 1.
double HelpBrowser::ScrolledTo() const {
    const QScrollBar* const bar = verticalScrollBar();
    return bar->maximum() == 0 ? 0.0 : static_cast<double>(bar->value()) / bar->maximum();
}

void HelpBrowser::ScrollTo(double place) {
    verticalScrollBar()->setValue(qRound(place * verticalScrollBar()->maximum()));
}

/// A new page is in the document.
void HelpBrowser::Settle() {
    setWordWrapMode(WrappingOf(toPlainText()).wrapMode());
    const QString title = documentTitle();
    setAccessibleName(title.isEmpty() ? tr("Help page") : title);
    const double place = ScrolledTo();
    ScaleFonts();
    ScrollTo(place);
    emit PageShown();
}

void HelpBrowser::SetZoom(int percent) {
    if (percent == zoom_) return;
    zoom_ = percent;
    QFont font = QApplication::font();
    font.setPointSizeF(font.pointSizeF() * zoom_ / 100);
    setFont(font);
    reload();
}

/// Sizes that a page gives in points or pixels do not follow the font of the browser.
void HelpBrowser::ScaleFonts() {
    if (zoom_ == 100) return;
    struct Sized {
        int start;
        int end;
        QTextCharFormat format;
    };
    std::vector<Sized> sized;
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QTextFragment part = it.fragment();
            QTextCharFormat format;
            for (const int property : {QTextFormat::FontPointSize, QTextFormat::FontPixelSize}) {
                if (!part.charFormat().hasProperty(property)) continue;
                const double size = part.charFormat().doubleProperty(property) * zoom_ / 100;
                format.setProperty(property, property == QTextFormat::FontPixelSize
                                                 ? QVariant(qRound(size))
                                                 : QVariant(size));
            }
            if (format.isEmpty()) continue;
            sized.push_back({part.position(), part.position() + part.length(), format});
        }
    }
    QTextCursor cursor(document());
    cursor.beginEditBlock();
    for (const auto& [start, end, format] : sized) {
        cursor.setPosition(start);
        cursor.setPosition(end, QTextCursor::KeepAnchor);
        cursor.mergeCharFormat(format);
    }
    cursor.endEditBlock();
}

void HelpBrowser::wheelEvent(QWheelEvent* event) {
    if (!(event->modifiers() & Qt::ControlModifier)) {
        QTextBrowser::wheelEvent(event);
        return;
    }
    emit ZoomAsked(event->angleDelta().y() > 0 ? 1 : -1);
    event->accept();
}

}  // namespace halvek
