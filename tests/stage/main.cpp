// SPDX-License-Identifier: MIT
// Where tests and people see each window of the library: a list of calls and a cashier's desk. See
// Calls.h and Conversation.h.
#include "Calls.h"
#include "Conversation.h"
#include "Looks.h"
#include "RecordingPlatform.h"
#include "StageWindow.h"

#include <QCommandLineParser>
#include <QDir>

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QCommandLineParser options;
    options.addHelpOption();
    options.addOptions({
        {"player", "Do what the standard input says, for stories by real keys."},
        {"palette", "Use these <colours>: light, dark or contrast.", "colours", "light"},
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
    StageWindow stage;
    stage.show();
    return QApplication::exec();
}
