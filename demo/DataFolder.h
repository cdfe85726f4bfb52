// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QDir>
#include <QStandardPaths>
#include <QString>

namespace frontdesk {

/// The user's folder for the practice's file and the error log; made if it is missing.
inline QString DataFolder() {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation);
    QDir().mkpath(folder);
    return folder;
}

/// The library's error log.
inline QString ErrorLogFile() {
    return DataFolder() + "/FrontDesk.log";
}

/// The client's help, beside the program, installed or in a build folder.
inline QString HelpFile() {
    return QDir::cleanPath(QCoreApplication::applicationDirPath() +
                           "/../share/halvekutils-demo/FrontDesk.chm");
}

}  // namespace frontdesk
