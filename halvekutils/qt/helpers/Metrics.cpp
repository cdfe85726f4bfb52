// SPDX-License-Identifier: MIT
#include <halvekutils/platform/Twips.h>
#include <halvekutils/qt/QtText.h>
#include <halvekutils/qt/helpers/Design.h>
#include <halvekutils/qt/helpers/Metrics.h>

#include <QApplication>
#include <QScreen>

#include <iterator>

namespace halvek {

namespace {

double LogicalDpi() {
    const QScreen* const screen = QGuiApplication::primaryScreen();
    return screen == nullptr ? 96.0 : screen->logicalDotsPerInch();
}

struct SchemeRow {
    QPalette::ColorRole role;
    QPalette::ColorGroup group = QPalette::Active;
};

// The colours of a desktop's scheme, in the order of their numbers.
constexpr SchemeRow kScheme[] = {
    {QPalette::Midlight},                             // scroll bar
    {QPalette::Dark},                                 // desktop
    {QPalette::Highlight},                            // active caption
    {QPalette::Highlight, QPalette::Inactive},        // inactive caption
    {QPalette::Window},                               // menu
    {QPalette::Base},                                 // window
    {QPalette::WindowText},                           // window frame
    {QPalette::WindowText},                           // menu text
    {QPalette::Text},                                 // window text
    {QPalette::HighlightedText},                      // caption text
    {QPalette::Button},                               // active border
    {QPalette::Button, QPalette::Inactive},           // inactive border
    {QPalette::Dark},                                 // application's workspace
    {QPalette::Highlight},                            // highlight
    {QPalette::HighlightedText},                      // highlighted text
    {QPalette::Button},                               // button face
    {QPalette::Dark},                                 // button shadow
    {QPalette::WindowText, QPalette::Disabled},       // disabled text
    {QPalette::ButtonText},                           // button text
    {QPalette::HighlightedText, QPalette::Inactive},  // inactive caption text
    {QPalette::Light},                                // button highlight
    {QPalette::Shadow},                               // dark shadow
    {QPalette::Midlight},                             // light edge
    {QPalette::ToolTipText},                          // tool tip text
    {QPalette::ToolTipBase},                          // tool tip
};

/// A colour of the desktop's scheme; the button face for an unknown number.
QColor SchemeColor(Color color, const QPalette& palette) {
    const auto number = static_cast<std::uint32_t>(color) & 0x7FFFFFFF;
    if (number >= std::size(kScheme)) return palette.color(QPalette::Button);
    return palette.color(kScheme[number].group, kScheme[number].role);
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
    if (font.points > 0) result.setPointSize(font.points);
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
    if (IsSchemeColor(color)) return SchemeColor(color, palette);
    return QColor(RedOf(color), GreenOf(color), BlueOf(color));
}

QPalette WithVisibleOutline(QPalette palette) {
    constexpr int kOutlineTone = 150;  // per cent
    if (design::IsHighContrast()) {
        palette.setColor(QPalette::Window, Qt::gray);
        return palette;
    }
    const QColor text = palette.color(QPalette::Text);
    const bool isDark = text.lightness() > palette.color(QPalette::Base).lightness();
    if (isDark) palette.setColor(QPalette::Window, text.darker(kOutlineTone));
    return palette;
}

}  // namespace halvek
