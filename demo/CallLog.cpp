// SPDX-License-Identifier: MIT
#include "CallLog.h"

namespace frontdesk {

namespace {

/// Texts stand in quotes, without the middle of long ones.
QString Shown(const QVariant& value) {
    constexpr qsizetype kMostLetters = 56;
    constexpr qsizetype kKeptEnd = 18;
    if (value.typeId() != QMetaType::QString) return value.toString();
    QString text = value.toString();
    if (text.size() > kMostLetters) {
        text = text.first(kMostLetters - kKeptEnd) + QChar(0x2026) + text.last(kKeptEnd);
    }
    return '"' + text.replace("\r", "\\r").replace("\n", "\\n").replace("\t", "\\t") + '"';
}

}  // namespace

void CallLog::Add(const QString& function, const QVariantList& arguments, const QVariant& result) {
    QStringList shown;
    for (const QVariant& argument : arguments) shown << Shown(argument);
    const QString call = function + '(' + shown.join(", ") + ')';
    lines_ << (result.isNull() ? call : call + " = " + Shown(result));
    emit Added(lines_.last());
}

}  // namespace frontdesk
