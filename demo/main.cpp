// SPDX-License-Identifier: MIT
#include "Desk.h"
#include "FocusRecord.h"
#include "Looks.h"
#include "MainWindow.h"
#include "SampleData.h"
#include "tour/Tour.h"

#include <halvekutils/qt/QtPlatform.h>

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QTimer>

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <functional>
#include <optional>
#include <stdexcept>

namespace {

using namespace frontdesk;

const QCommandLineOption& TourOption() {
    static const QCommandLineOption option(
        "tour", "Play every service without a person; leave pictures and results in <folder>.",
        "folder");
    return option;
}

const QCommandLineOption& RecordOption() {
    static const QCommandLineOption option(
        "record", "Append what every call returns to <file>, one line for each.", "file");
    return option;
}

const QCommandLineOption& FocusOption() {
    static const QCommandLineOption option(
        "focus", "Append which control the keyboard acts on to <file>, one line for each change.",
        "file");
    return option;
}

const QCommandLineOption& PaletteOption() {
    static const QCommandLineOption option(
        "palette", "Use the <colours> " + LooksNames().join(" or ") + ", not the desktop's own.",
        "colours");
    return option;
}

void Describe(QCommandLineParser& options) {
    options.setApplicationDescription("A front-desk client that shows every HalvekUtils service.");
    options.addHelpOption();
    options.addVersionOption();
    options.addOption(TourOption());
    options.addOption(RecordOption());
    options.addOption(FocusOption());
    options.addOption(PaletteOption());
}

/// A tour, the help and the version need no display.
void WorkWithoutDisplay(int argumentCount) {
    const bool hasDisplay =
        qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
    if (argumentCount < 2 || hasDisplay || qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) return;
    qputenv("QT_QPA_PLATFORM", "offscreen");
}

/// The folder of the client's error log.
QString LogFolder(const QCommandLineParser& options) {
    if (options.isSet(TourOption())) return options.value(TourOption());
    return QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation);
}

int PlayTour(MainWindow& window, Desk& desk, const QString& folder) {
    Tour tour(folder, desk.Calls());
    int code = EXIT_FAILURE;
    QTimer start;
    start.setSingleShot(true);
    QObject::connect(&start, &QTimer::timeout, [&] {
        window.Play(tour);
        code = tour.Finish();
        QCoreApplication::quit();
    });
    start.start();
    QCoreApplication::exec();
    return code;
}

/// Appends the lines it is given to a file.
std::function<void(const QString&)> AppendTo(QFile& file) {
    if (!file.open(QIODevice::WriteOnly | QIODevice::Append)) {
        throw std::runtime_error(("cannot write to " + file.fileName()).toStdString());
    }
    return [&file](const QString& line) {
        file.write(line.toUtf8() + '\n');
        file.flush();
    };
}

int Run(const QCommandLineParser& options) {
    if (options.isSet(PaletteOption())) UseLooks(options.value(PaletteOption()));
    const QString logFolder = LogFolder(options);
    QDir().mkpath(logFolder);
    QFile record(options.value(RecordOption()));
    QFile focusFile(options.value(FocusOption()));
    Desk desk(SampleData(SampleData::Folder()), logFolder);
    if (options.isSet(RecordOption())) desk.Calls().Listen(AppendTo(record));
    MainWindow window(desk);
    std::optional<FocusRecord> focus;
    if (options.isSet(FocusOption())) focus.emplace(AppendTo(focusFile));
    window.show();
    if (options.isSet(TourOption())) return PlayTour(window, desk, logFolder);
    return QCoreApplication::exec();
}

}  // namespace

int main(int argc, char** argv) {
    WorkWithoutDisplay(argc);
    QApplication app(argc, argv);
    QCoreApplication::setOrganizationName("HalvekUtils");
    QCoreApplication::setApplicationName("FrontDesk");
    QCoreApplication::setApplicationVersion(HALVEK_DEMO_VERSION);
    QGuiApplication::setDesktopFileName("halvekutils-demo");
    const halvek::QtPlatform desktop;
    QCommandLineParser options;
    Describe(options);
    options.process(app);
    try {
        return Run(options);
    } catch (const std::exception& caught) {
        std::fprintf(stderr, "Front Desk cannot start: %s\n", caught.what());
        return EXIT_FAILURE;
    }
}
