// SPDX-License-Identifier: MIT
#include <halvekutils/base/RuntimeError.h>
#include <halvekutils/qt/QtText.h>
#include <halvekutils/qt/help/HelpBrowser.h>
#include <halvekutils/qt/helpers/EventGuard.h>
#include <halvekutils/qt/helpers/InputMethodRefusal.h>
#include <halvekutils/qt/helpers/Metrics.h>
#include <halvekutils/qt/helpers/SpokenNotice.h>

#include <QAccessible>
#include <QApplication>
#include <QElapsedTimer>
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
constexpr qint64 kMaxPixelsOnPage = 16'000'000;
constexpr qint64 kMaxPictureTime = 1000;  // milliseconds
constexpr int kMaxPictureSize = 4000;

QString ContextKey() {
    return QStringLiteral("context");
}

/// The text engine takes the colour of links from the desktop, which may be dark.
QString PaperStyle() {
    return QStringLiteral("a:link { color: #004AAD }");
}

}  // namespace

HelpBrowser::HelpBrowser(QWidget* parent) : QTextBrowser(parent), notice_(new SpokenNotice(*this)) {
    new InputMethodRefusal(*this);
    setOpenLinks(false);
    setUndoRedoEnabled(false);
    document()->setDocumentMargin(kPageMargin);
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
    if (type == QTextDocument::ImageResource) return PictureAt(address);
    if (type != QTextDocument::HtmlResource) return QByteArray("");
    pixelsLeft_ = kMaxPixelsOnPage;
    timeLeft_ = kMaxPictureTime;
    const HelpPage page = PageAt(address);
    UsePaper(page.isPaper);
    return page.html;
}

HelpPage HelpBrowser::PageAt(const QUrl& address) {
    if (help_ == nullptr) return UnreadablePage(fault_);
    const QString context = QUrlQuery(address).queryItemValue(ContextKey());
    if (!context.isEmpty()) return MissingContextPage(*help_, context);
    const QString path = address.path(QUrl::FullyDecoded);
    if (!IsInside(address) || !help_->Has(path)) return MissingTopicPage(*help_, path);
    HelpPage page = UnreadablePage(u"");
    GuardEvent(u"HelpBrowser.PageAt", [&] {
        try {
            page = PageOf(*help_, path, Root());
        } catch (const std::exception& caught) {
            page = UnreadablePage(AsRuntimeError(caught).Description());
            throw;
        }
    });
    return page;
}

/// Pages that give colours are written for black on white; others take the desktop's.
void HelpBrowser::UsePaper(bool isPaper) {
    QPalette paper;
    if (isPaper) {
        paper.setColor(QPalette::Base, Qt::white);
        paper.setColor(QPalette::Text, Qt::black);
    }
    setPalette(paper);
    document()->setDefaultStyleSheet(isPaper ? PaperStyle() : QString());
}

/// The size at which the picture is shown follows the "?".
QImage HelpBrowser::PictureAt(const QUrl& address) {
    QImage picture;
    const QString path = address.path(QUrl::FullyDecoded);
    const bool isThere = help_ != nullptr && IsInside(address) && help_->Has(path);
    if (isThere && pixelsLeft_ > 0 && timeLeft_ > 0) {
        const QStringList size = address.query().split(QLatin1Char('x'));
        QSize most(size.value(0).toInt(), size.value(1).toInt());
        most = most.isEmpty() ? QSize(kMaxPictureSize, kMaxPictureSize)
                              : (QSizeF(most) * devicePixelRatioF()).toSize();
        QElapsedTimer timer;
        timer.start();
        picture = Quietly(QImage(), [&] { return PictureOf(help_->Read(path), most); });
        timeLeft_ -= timer.elapsed();
        pixelsLeft_ -= qint64{picture.width()} * picture.height();
    }
    if (!picture.isNull()) return picture;
    return style()->standardIcon(QStyle::SP_FileIcon).pixmap(16).toImage();
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
    // Screen readers read along with a caret; for everybody else the arrow keys scroll.
    setTextInteractionFlags(QAccessible::isActive()
                                ? Qt::TextBrowserInteraction | Qt::TextSelectableByKeyboard
                                : Qt::TextBrowserInteraction);
    const double place = ScrolledTo();
    ScaleFonts();
    ScrollTo(place);
    emit PageShown();
}

// The Tab key selects links one after the other, which is not a move of the focus.
bool HelpBrowser::focusNextPrevChild(bool next) {
    const bool moved = QTextBrowser::focusNextPrevChild(next);
    GuardEvent(u"HelpBrowser.Tab", [this] {
        const QTextCursor cursor = textCursor();
        if (!hasFocus() || !cursor.hasSelection() || !cursor.charFormat().isAnchor()) return;
        notice_->Say(tr("Link %1").arg(cursor.selectedText()));
    });
    return moved;
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
