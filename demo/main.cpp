// SPDX-License-Identifier: MIT
#include "DataFolder.h"
#include "FrontDeskWindow.h"
#include "IdleWatch.h"
#include "Looks.h"
#include "OpenPractice.h"
#include "visit/VisitPlayer.h"
#include "widgets/Icons.h"

#include <halvekutils/qt/QtPlatform.h>

#include <QApplication>
#include <QCommandLineParser>
#include <QFile>

#include <cstdio>
#include <cstdlib>
#include <exception>

namespace {

using namespace frontdesk;

constexpr char kDefaultIdle[] = "300";

/// The options of the command line.
struct Options {
    QCommandLineOption data{"data", "Keep the practice in <file>; \":memory:\" keeps nothing.",
                            "file"};
    QCommandLineOption visit{
        "visit", "Play one visit without a person; leave pictures in <folder>.", "folder"};
    QCommandLineOption calls{"calls", "Append each call of the library to <file>.", "file"};
    QCommandLineOption palette{
        "palette", "Use the <colors> " + LooksNames().join(" or ") + ", not the desktop's own.",
        "colors"};
    QCommandLineOption idle{"idle",
                            "Close the open accounts after <seconds> without a key or a click.",
                            "seconds", kDefaultIdle};
    QCommandLineOption debug{"debug", "Show the library's debug console."};

    void AddTo(QCommandLineParser& parser) const {
        parser.setApplicationDescription("The front desk of a practice, a client of HalvekUtils.");
        parser.addHelpOption();
        parser.addVersionOption();
        parser.addOptions({data, visit, calls, palette, idle, debug});
    }
};

void ChooseDisplay(int argumentCount) {
    if (qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) return;
    const bool hasX = qEnvironmentVariableIsSet("DISPLAY");
    const bool hasWayland = qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
    // Wayland lets no program place its windows, so calendars would not open beside their fields.
    if (hasX && hasWayland) qputenv("QT_QPA_PLATFORM", "xcb");
    // A visit, the help and the version need no display.
    if (!hasX && !hasWayland && argumentCount > 1) qputenv("QT_QPA_PLATFORM", "offscreen");
}

QString DataFile(const QCommandLineParser& parser, const Options& options) {
    if (parser.isSet(options.data)) return parser.value(options.data);
    return parser.isSet(options.visit) ? QString(":memory:") : DataFolder() + "/practice.db";
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

int Run(const QCommandLineParser& parser, const Options& options) {
    if (parser.isSet(options.palette)) UseLooks(parser.value(options.palette));
    CallLog calls;
    QFile callFile(parser.value(options.calls));
    if (parser.isSet(options.calls)) AppendCalls(calls, callFile);
    const auto utils = halvek::Utils::Create();
    const bool debug = parser.isSet(options.debug);
    utils->InitUtils(ErrorLogFile(), u"Front Desk", u"clinic", debug, u"" HALVEK_DEMO_VERSION);
    calls.Add("InitUtils", {ErrorLogFile(), QString("Front Desk"), QString("clinic"), debug});
    auto practice = OpenPractice(DataFile(parser, options), *utils);
    if (practice == nullptr) return EXIT_FAILURE;
    Desk desk(utils, calls, std::move(practice));
    FrontDeskWindow window(desk);
    QObject::connect(&window, &FrontDeskWindow::Painted, &desk, &Desk::FinishStart);
    window.show();
    window.Start();
    if (parser.isSet(options.visit))
        return VisitPlayer(desk, window, parser.value(options.visit)).Play();
    const IdleWatch idle(desk, parser.value(options.idle).toInt());
    return QCoreApplication::exec();
}

}  // namespace

int main(int argc, char** argv) {
    ChooseDisplay(argc);
    QApplication app(argc, argv);
    QCoreApplication::setOrganizationName("HalvekUtils");
    QCoreApplication::setApplicationName("FrontDesk");
    QCoreApplication::setApplicationVersion(HALVEK_DEMO_VERSION);
    QGuiApplication::setDesktopFileName("halvekutils-demo");
    QGuiApplication::setWindowIcon(MakeIcon(Glyph::Desk));
    const halvek::QtPlatform desktop;
    const Options options;
    QCommandLineParser parser;
    options.AddTo(parser);
    parser.process(app);
    try {
        return Run(parser, options);
    } catch (const std::exception& caught) {
        std::fprintf(stderr, "Front Desk cannot start: %s\n", caught.what());
        return EXIT_FAILURE;
    }
}
