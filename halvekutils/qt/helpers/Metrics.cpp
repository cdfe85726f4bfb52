// SPDX-License-Identifier: MIT
#include <halvekutils/platform/Twips.h>
#include <halvekutils/qt/QtText.h>
#include <halvekutils/qt/helpers/Metrics.h>

#include <QApplication>
#include <QScreen>

namespace halvek {

namespace {

double LogicalDpi() {
    const QScreen* const screen = QGuiApplication::primaryScreen();
    return screen == nullptr ? 96.0 : screen->logicalDotsPerInch();
}

}  // namespace

std::int32_t PixelsToTwips(double pixels) {
    return ToTwips(pixels, LogicalDpi());
}
int TwipsToPixels(std::int32_t twips) {
    return ToPixels(twips, LogicalDpi());
}

QRect ToQRect(const Rect& rect) {
    return QRect(TwipsToPixels(rect.left), TwipsToPixels(rect.top), TwipsToPixels(rect.width),
                 TwipsToPixels(rect.height));
}

Rect ToRect(const QRect& rect) {
    return {PixelsToTwips(rect.left()), PixelsToTwips(rect.top()), PixelsToTwips(rect.width()),
            PixelsToTwips(rect.height())};
}

QFont ToQFont(const FontSpec& font) {
    QFont result = QApplication::font();
    if (!font.face.empty()) result.setFamily(ToQString(font.face));
    result.setPointSize(font.points);
    result.setBold(font.bold);
    return result;
}

QTextOption WrappingOf(const QString& text) {
    constexpr qsizetype kMaxWordLength = 2000;
    qsizetype wordStart = 0;
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    for (qsizetype i = 0; i <= text.size(); ++i) {
        if (i < text.size() && !text[i].isSpace()) continue;
        if (i - wordStart > kMaxWordLength) option.setWrapMode(QTextOption::WrapAnywhere);
        wordStart = i + 1;
    }
    return option;
}

QColor ToQColor(Color color, const QPalette& palette) {
    if (IsSchemeColor(color)) return palette.color(QPalette::Button);
    return QColor(RedOf(color), GreenOf(color), BlueOf(color));
}

QPalette WithVisibleOutline(QPalette palette) {
    constexpr int kOutlineTone = 150;  // per cent
    const QColor text = palette.color(QPalette::Text);
    const bool isDark = text.lightness() > palette.color(QPalette::Base).lightness();
    if (isDark) palette.setColor(QPalette::Window, text.darker(kOutlineTone));
    return palette;
}

}  // namespace halvek
