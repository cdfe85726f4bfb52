// SPDX-License-Identifier: MIT
#include "Shown.h"

#include <halvekutils/qt/QtText.h>

namespace frontdesk {

namespace {

constexpr qsizetype kMaxTextLength = 56;
constexpr qsizetype kKeptEnd = 18;

QString Shortened(const QString& text) {
    if (text.size() <= kMaxTextLength) return text;
    return text.first(kMaxTextLength - kKeptEnd) + QChar(0x2026) + text.last(kKeptEnd);
}

QString Escaped(QString text) {
    return text.replace("\r", "\\r").replace("\n", "\\n").replace("\t", "\\t");
}

}  // namespace

QString Shown(const QString& text) {
    return '"' + Escaped(Shortened(text)) + '"';
}

QString Shown(halvek::TextIn text) {
    return Shown(halvek::ToQString(text));
}

QString Shown(const halvek::StringArray& array) {
    if (!array.IsAllocated()) return "unallocated";
    QStringList elements;
    for (const std::u16string& element : array) elements << Shown(element);
    return QString("(%1 to %2) %3")
        .arg(array.LBound())
        .arg(array.UBound())
        .arg(elements.join(", "));
}

QString Shown(std::int32_t value) {
    return QString::number(value);
}

QString Shown(double value) {
    return QString::number(value);
}

}  // namespace frontdesk
