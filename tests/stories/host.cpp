// SPDX-License-Identifier: MIT
// The host of the stories: a cashier's window that answers to a player. See Conversation.h.
#include "Conversation.h"
#include "RecordingPlatform.h"

#include <QApplication>

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    RecordingPlatform desktop;
    Conversation conversation;
    return QApplication::exec();
}
