// SPDX-License-Identifier: MIT
#include <halvekutils/base/CodePage.h>
#include <halvekutils/qt/QtText.h>

#include <cstddef>

namespace halvek {

QString ToQString(TextIn text) {
    return QString::fromUtf16(text.data(), static_cast<qsizetype>(text.size()));
}

QString ToToolTip(TextIn text) {
    if (text.empty()) return {};
    // A paragraph that wraps and keeps its blanks; Qt's own conversions do one or the other.
    return QLatin1String("<p style=\"white-space:pre-wrap\">") + ToQString(text).toHtmlEscaped() +
           QLatin1String("</p>");
}

QString ToWindowTitle(TextIn text) {
    // A title of megabytes makes the display server drop the connection, which ends the program.
    constexpr std::size_t kMaxShown = 2000;
    return ToQString(text.substr(0, kMaxShown))
        .replace(QLatin1String("[*]"), QLatin1String("[*][*]"));
}

QString ToCaption(TextIn text) {
    return ToQString(text).replace(QLatin1Char('&'), QLatin1String("&&"));
}

QString FromServer(const QByteArray& bytes) {
    return QString::fromStdU16String(
        FromCodePage({bytes.data(), static_cast<std::size_t>(bytes.size())}));
}

QByteArray ToServer(TextIn text) {
    return QByteArray::fromStdString(ToCodePage(text));
}

}  // namespace halvek
