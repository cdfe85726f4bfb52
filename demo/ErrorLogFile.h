// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

namespace frontdesk {

/// The library's error log, read as it grows.
class ErrorLogFile {
  public:
    explicit ErrorLogFile(const QString& path);

    /// Switches to another log, as the library does after InitUtils with this name.
    void Follow(const QString& errFileName);

    const QString& Path() const { return path_; }

    /// The messages logged since the last call, without time and login name.
    QStringList NewMessages();

    /// The last lines of the log.
    QString Tail(int lines) const;

  private:
    QByteArray ReadFrom(qint64 position) const;

    QString path_;
    qint64 position_ = 0;
};

}  // namespace frontdesk
