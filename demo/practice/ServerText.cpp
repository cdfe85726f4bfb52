// SPDX-License-Identifier: MIT
#include "practice/ServerText.h"

#include <halvekutils/qt/QtText.h>

namespace frontdesk {

namespace {

struct FormatRow {
    TextFormat format;
    QChar betweenRecords;
    QChar betweenFields;
    bool endsRecords;          ///< the last record has a separator too
    const char16_t* reserved;  ///< what no value may hold
};

// In rights nothing stands between an item and its digit.
constexpr FormatRow kFormats[] = {
    {TextFormat::Codes, u'|', u'\u00E6', false, u"|\u00E6"},
    {TextFormat::Rights, u'\u00E6', QChar(), false, u"\u00E6"},
    {TextFormat::Printers, u'\t', u':', false, u"\t:"},
    {TextFormat::Settings, QChar(), u'\u00DF', false, u"\u00DF"},
    {TextFormat::Reminders, u'\u00E7', u'\u00E6', false, u"\u00E6\u00E7\u00A3"},
    {TextFormat::Selection, u':', u'\t', true, u":\t"},
};

struct Replacement {
    char16_t letter;
    const char* by;
};

constexpr Replacement kReplacements[] = {
    {u'\u00E6', "ae"}, {u'\u00E7', "c"}, {u'\u00DF', "ss"}, {u'\u00A3', "GBP "},
    {u'|', "/"},       {u':', ";"},      {u'\t', " "},
};

const FormatRow& RowOf(TextFormat format) {
    for (const FormatRow& row : kFormats) {
        if (row.format == format) return row;
    }
    return kFormats[0];
}

}  // namespace

QString ServerText::Carried(const QString& value) const {
    QString carried = value;
    const QStringView reserved(RowOf(format_).reserved);
    for (const Replacement& replacement : kReplacements) {
        if (reserved.contains(QChar(replacement.letter))) {
            carried.replace(QChar(replacement.letter), QLatin1String(replacement.by));
        }
    }
    return carried;
}

void ServerText::Add(const QStringList& values) {
    const FormatRow& row = RowOf(format_);
    QStringList carried;
    for (const QString& value : values) carried << Carried(value);
    if (hasRecords_ && !row.endsRecords) text_ += row.betweenRecords;
    text_ += row.betweenFields.isNull() ? carried.join("") : carried.join(row.betweenFields);
    if (row.endsRecords) text_ += row.betweenRecords;
    hasRecords_ = true;
}

QByteArray ServerText::Bytes() const {
    return halvek::ToServer(text_);
}

}  // namespace frontdesk
