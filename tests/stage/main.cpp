// SPDX-License-Identifier: MIT
// Where tests and people see each window of the library: a list of calls, a cashier's desk, and
// pictures of all. See Calls.h, Conversation.h and Pictures.h.
#include "Calls.h"
#include "Conversation.h"
#include "Looks.h"
#include "Pictures.h"
#include "RecordingPlatform.h"
#include "StageWindow.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QCommandLineParser options;
    options.addHelpOption();
    options.addOptions({
        {"player", "Do what the standard input says, for stories by real keys."},
        {"pictures", "Leave pictures of all windows in <folder>.", "folder"},
        {"palette", "Use these <colours>: light or dark.", "colours", "light"},
        {"font", "Use a font of so many <points>.", "points", "0"},
    });
    options.process(app);
    UseLooks(options.value("palette"), options.value("font").toInt());
    RecordingPlatform desktop;
    if (options.isSet("player")) {
        QApplication::setQuitOnLastWindowClosed(false);
        Conversation conversation;
        return QApplication::exec();
    }
    StartSession(QDir::tempPath() + "/halvek-stage.log", false);
    if (options.isSet("pictures")) {
        return Pictures(HALVEK_TEST_DATA "/stage/tour.txt", options.value("pictures")).Play();
    }
    StageWindow stage;
    stage.show();
    return QApplication::exec();
}
