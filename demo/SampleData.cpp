// SPDX-License-Identifier: MIT
#include "SampleData.h"

#include <halvekutils/base/TextIn.h>
#include <halvekutils/qt/QtText.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include <stdexcept>
#include <utility>
#include <vector>

namespace frontdesk {

namespace {

QByteArray ReadFile(const QString& folder, const QString& name) {
    QFile file(folder + '/' + name);
    if (!file.open(QIODevice::ReadOnly)) {
        throw std::runtime_error(
            (file.fileName() + " cannot be read: " + file.errorString()).toStdString());
    }
    return file.readAll();
}

std::u16string ReadText(const QString& folder, const QString& name) {
    return halvek::FromServer(ReadFile(folder, name)).toStdU16String();
}

QStringList LinesOf(const QByteArray& bytes) {
    return QString::fromUtf8(bytes).split('\n', Qt::SkipEmptyParts);
}

QHash<QString, QString> ParseSession(const QByteArray& bytes) {
    QHash<QString, QString> values;
    for (const QString& line : LinesOf(bytes)) {
        if (line.startsWith('#')) continue;
        values.insert(line.section('=', 0, 0), line.section('=', 1));
    }
    return values;
}

/// The palette's colours, counted from 1.
halvek::StringArray ParseColors(const QByteArray& bytes) {
    std::vector<std::u16string> colors;
    for (const QString& line : LinesOf(bytes)) colors.push_back(line.trimmed().toStdU16String());
    return halvek::StringArray(1, std::move(colors));
}

/// Each line is one text of the server, after its name and "=".
template <class Entry>
std::vector<Entry> ParseEntries(const std::u16string& text) {
    std::vector<Entry> entries;
    for (const QString& line : halvek::ToQString(text).split('\n', Qt::SkipEmptyParts)) {
        entries.push_back({line.section('=', 0, 0), line.section('=', 1)});
    }
    return entries;
}

}  // namespace

SampleData::SampleData(const QString& folder)
    : session_(ParseSession(ReadFile(folder, "session.txt"))),
      colors_(ParseColors(ReadFile(folder, "colors.txt"))),
      codes_(ReadText(folder, "codes.txt")),
      rights_(ReadText(folder, "rights.txt")),
      printers_(ReadText(folder, "printers.txt")),
      settings_(ReadText(folder, "settings.txt")),
      selections_(ParseEntries<SelectionSource>(ReadText(folder, "selections.txt"))),
      reminders_(ParseEntries<Reminder>(ReadText(folder, "reminders.txt"))) {}

QString SampleData::Folder() {
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + "/../share/halvekutils-demo");
}

QString SampleData::HelpFile() {
    return Folder() + "/FrontDesk.chm";
}

Identity SampleData::StartIdentity() const {
    return {SessionValue("ErrFileName"), SessionValue("AppName"), SessionValue("AppType"),
            SessionValue("DebugMode") == "1", SessionValue("ExeFileStamp")};
}

Preferences SampleData::StartPreferences() const {
    return {colors_, SessionColor("FormSkinColor"), SessionColor("FormTextColor"),
            SessionColor("FormTopColor"), SessionColor("RequiredFieldBackColor")};
}

OtherSettings SampleData::StartOtherSettings() const {
    return {SessionColor("HighlightBackColor"), SessionColor("HighlightForeColor"),
            SessionValue("CodeDelimiter"), SessionValue("ColumnAdjustValue").toDouble(),
            SessionValue("ScrollBarWidth").toInt()};
}

}  // namespace frontdesk
