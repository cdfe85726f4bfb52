// SPDX-License-Identifier: MIT
#include "FrontDeskWindow.h"
#include "visit/VisitPlayer.h"

#include <halvekutils/qt/QtPlatform.h>

#include <QApplication>
#include <QCommandLineParser>
#include <QFile>
#include <QIcon>
#include <QPalette>

#include <cstdio>
#include <cstdlib>
#include <exception>

namespace {

using namespace frontdesk;

void ReadOptions(QCommandLineParser& parser, const QApplication& app) {
    parser.setApplicationDescription("The front desk of a practice, a client of HalvekUtils.");
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addOptions(
        {{"data", "Keep the practice in <file>; \":memory:\" keeps nothing.", "file"},
         {"visit", "Play one visit without a person; leave pictures in <folder>.", "folder"},
         {"calls", "Append each call of the library to <file>.", "file"},
         {"idle", "Close the open accounts after <seconds> without a key or a click.", "seconds",
          "300"},
         {"debug", "Show the library's debug console."}});
    parser.process(app);
}

void ChooseDisplay(int argumentCount) {
    if (qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) return;
    const bool hasX = qEnvironmentVariableIsSet("DISPLAY");
    const bool hasWayland = qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
    // Wayland lets no program place its windows, so calendars would not open beside their fields.
    if (hasX && hasWayland) qputenv("QT_QPA_PLATFORM", "xcb");
    // A visit, the help and the version need no display.
    if (!hasX && !hasWayland && argumentCount > 1) qputenv("QT_QPA_PLATFORM", "offscreen");
}

/// What Qt leaves hard to see on a dark desktop: the outlines of fields, which its Fusion style
/// derives from the colour of the window, and the hints in empty ones.
void MendDarkColors() {
    if (QApplication::palette().color(QPalette::Window).lightness() >= 128) return;
    QPalette palette;
    palette.setColor(QPalette::Window, 0x8F9296);
    palette.setColor(QPalette::PlaceholderText, 0x9A9DA1);
    for (const char* field : {"QLineEdit", "QComboBox"}) QApplication::setPalette(palette, field);
}

/// Writes each call to a file as it happens.
void AppendCalls(CallLog& calls, QFile& file) {
    if (!file.open(QIODevice::WriteOnly | QIODevice::Append)) {
        std::fprintf(stderr, "%s cannot be written\n", qPrintable(file.fileName()));
        return;
    }
    QObject::connect(&calls, &CallLog::Added, [&file](const QString& line) {
        file.write(line.toUtf8() + '\n');
        file.flush();
    });
}

int Run(const QCommandLineParser& parser) {
    MendDarkColors();
    CallLog calls;
    QFile callFile(parser.value("calls"));
    if (parser.isSet("calls")) AppendCalls(calls, callFile);
    Desk desk(calls, parser.isSet("debug"));
    const bool isVisit = parser.isSet("visit");
    const QString usual = isVisit ? QString(":memory:") : DataFolder() + "/practice.db";
    if (!desk.Open(parser.isSet("data") ? parser.value("data") : usual)) return EXIT_FAILURE;
    FrontDeskWindow window(desk);
    window.show();
    if (isVisit) return PlayVisit(desk, window, parser.value("visit"));
    window.WatchIdle(parser.value("idle").toInt());
    return QCoreApplication::exec();
}

}  // namespace

int main(int argc, char** argv) {
    ChooseDisplay(argc);
    const QApplication app(argc, argv);
    QCoreApplication::setOrganizationName("HalvekUtils");
    QCoreApplication::setApplicationName("FrontDesk");
    QCoreApplication::setApplicationVersion(HALVEK_DEMO_VERSION);
    QGuiApplication::setDesktopFileName("halvekutils-demo");
    QGuiApplication::setWindowIcon(QIcon(":/icons/desk.png"));
    const halvek::QtPlatform desktop;
    QCommandLineParser parser;
    ReadOptions(parser, app);
    try {
        return Run(parser);
    } catch (const std::exception& caught) {
        std::fprintf(stderr, "Front Desk cannot start: %s\n", caught.what());
        return EXIT_FAILURE;
    }
}
