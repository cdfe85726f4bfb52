// SPDX-License-Identifier: MIT
#include "practice/ServerText.h"

#include <halvekutils/qt/QtText.h>

#include <cstddef>

namespace frontdesk {

namespace {

struct FormatRow {
    const char16_t* betweenRecords;
    const char16_t* betweenFields;
    bool endsRecords;          ///< the last record has a separator too
    const char16_t* reserved;  ///< what no value may hold
};

// In the order of the formats. In rights nothing stands between an item and its digit.
constexpr FormatRow kFormats[] = {
    {u"|", u"\u00E6", false, u"|\u00E6"},                  // code tables
    {u"\u00E6", u"", false, u"\u00E6"},                    // rights
    {u"\t", u":", false, u"\t:"},                          // printers
    {u"", u"\u00DF", false, u"\u00DF"},                    // settings
    {u"\u00E7", u"\u00E6", false, u"\u00E6\u00E7\u00A3"},  // reminders
    {u":", u"\t", true, u":\t"},                           // selection lists
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
    return kFormats[static_cast<std::size_t>(format)];
}

}  // namespace

QString Carried(TextFormat format, const QString& value) {
    QString carried = value;
    const QStringView reserved(RowOf(format).reserved);
    for (const Replacement& replacement : kReplacements) {
        if (reserved.contains(QChar(replacement.letter))) {
            carried.replace(QChar(replacement.letter), QLatin1String(replacement.by));
        }
    }
    return carried;
}

QByteArray ServerText(TextFormat format, const QList<QStringList>& records, const QString& mark) {
    const FormatRow& row = RowOf(format);
    QStringList texts;
    for (const QStringList& values : records) {
        QStringList carried;
        for (const QString& value : values) carried << Carried(format, value);
        texts << carried.join(QStringView(row.betweenFields));
    }
    if (row.endsRecords) texts << QString();
    return halvek::ToServer(texts.join(QStringView(row.betweenRecords)) + mark);
}

}  // namespace frontdesk
