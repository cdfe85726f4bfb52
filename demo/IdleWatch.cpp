// SPDX-License-Identifier: MIT
#include "IdleWatch.h"

#include <QApplication>

namespace frontdesk {

namespace {

constexpr int kCountdown = 30;  // seconds, or as long as the wait before it

}  // namespace

IdleWatch::IdleWatch(Desk& desk, int seconds) : desk_(desk) {
    timer_.setSingleShot(true);
    timer_.setInterval(seconds * 1000);
    connect(&timer_, &QTimer::timeout, this, [this] { Warn(); });
    qApp->installEventFilter(this);
    timer_.start();
}

bool IdleWatch::eventFilter(QObject*, QEvent* event) {
    if (event->type() == QEvent::KeyPress || event->type() == QEvent::MouseMove ||
        event->type() == QEvent::MouseButtonPress) {
        timer_.start();
    }
    return false;
}

// An open dialog is left alone: it may hold an answer that somebody is about to give.
void IdleWatch::Warn() {
    const bool isOpen = !desk_.Accounts().Numbers().isEmpty();
    if (isOpen && QApplication::activeModalWidget() == nullptr) {
        const auto answer = desk_.Ask(
            "Nobody has used this desk for a while.\r\n\r\nThe open accounts "
            "close now, unless you press OK.",
            halvek::mbOkOnly, halvek::mbReminder, "Front Desk",
            qMin(kCountdown, timer_.interval() / 1000));
        if (answer == halvek::kClosedByCountdown) desk_.CloseAllAccounts();
    }
    timer_.start();
}

}  // namespace frontdesk
