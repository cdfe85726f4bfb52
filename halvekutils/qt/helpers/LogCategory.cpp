// SPDX-License-Identifier: MIT
#include <halvekutils/platform/LogEcho.h>
#include <halvekutils/qt/QtText.h>

#include <QLoggingCategory>

namespace halvek {

namespace {

// One category with two defaults. Rules of the program and of QT_LOGGING_RULES come before both.
Q_LOGGING_CATEGORY(inDebugMode, "halvekutils")
Q_LOGGING_CATEGORY(otherwise, "halvekutils", QtCriticalMsg)

void Warn(TextIn line, bool debugMode) {
    const QLoggingCategory& category = debugMode ? inDebugMode() : otherwise();
    qCWarning(category).noquote() << ToQString(line);
}

// With the library, not with QtPlatform: a program that has none is told that, too.
[[maybe_unused]] const bool installed = [] {
    InstallLogEcho(&Warn);
    return true;
}();

}  // namespace

}  // namespace halvek
