// SPDX-License-Identifier: MIT
#include "ErrorLogFile.h"

#include <halvekutils/qt/QtText.h>

#include <QFile>
#include <QFileInfo>

namespace frontdesk {

namespace {

constexpr qint64 kMaxTailLength = 65'536;

}  // namespace

ErrorLogFile::ErrorLogFile(const QString& path) {
    Follow(path);
}

void ErrorLogFile::Follow(const QString& errFileName) {
    QString path = errFileName;
    path.replace('\\', '/');
    if (path.isEmpty()) path = "Error.Log";
    // A name without a folder stays in the folder of the previous log.
    path_ = path.contains('/') || path_.isEmpty() ? path : QFileInfo(path_).path() + '/' + path;
    position_ = QFileInfo(path_).size();
}

QStringList ErrorLogFile::NewMessages() {
    const qint64 size = QFileInfo(path_).size();
    if (size < position_) position_ = 0;  // the log was rotated
    const QString text = halvek::FromServer(ReadFrom(position_));
    position_ = size;
    QStringList messages;
    for (const QString& line : text.split("\r\n", Qt::SkipEmptyParts)) {
        const bool starts = line.count('\t') >= 2;
        if (starts) {
            messages << line.section('\t', 2);
        } else if (!messages.isEmpty()) {
            messages.last() += ' ' + line.trimmed();
        }
    }
    return messages;
}

QString ErrorLogFile::Tail(int lines) const {
    const qint64 size = QFileInfo(path_).size();
    const QString text = halvek::FromServer(ReadFrom(qMax<qint64>(0, size - kMaxTailLength)));
    return text.trimmed().section("\r\n", -lines).replace("\r\n", "\n");
}

QByteArray ErrorLogFile::ReadFrom(qint64 position) const {
    QFile file(path_);
    if (!file.open(QIODevice::ReadOnly) || !file.seek(position)) return {};
    return file.readAll();
}

}  // namespace frontdesk
