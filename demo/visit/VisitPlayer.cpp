// SPDX-License-Identifier: MIT
#include "visit/VisitPlayer.h"

#include "Texts.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QKeyEvent>
#include <QPainter>
#include <QScreen>
#include <QTimer>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <utility>

namespace frontdesk {

namespace {

constexpr std::chrono::milliseconds kPause(60);
constexpr int kMostTries = 500;

/// Presses a key where the keyboard is.
std::function<void()> Press(Qt::Key key) {
    return [key] {
        QWidget* target = QApplication::focusWidget();
        if (target == nullptr) target = QApplication::activeWindow();
        if (target == nullptr) return;
        const QString text = key < 128 ? QString(QChar(key)).toLower() : QString();
        for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QCoreApplication::postEvent(target, new QKeyEvent(type, key, Qt::NoModifier, text));
        }
    };
}

/// Clicks a button, found by its object name or its accessible name, that can be seen.
std::function<void()> Click(const QString& name) {
    return [name] {
        for (QWidget* widget : QApplication::allWidgets()) {
            auto* button = qobject_cast<QAbstractButton*>(widget);
            if (button == nullptr || !button->isVisible()) continue;
            if (button->objectName() == name || button->accessibleName() == name)
                return button->click();
        }
    };
}

/// Chooses from a menu or the tool bar, by the text without "&".
std::function<void()> Choose(QWidget& window, const QString& text) {
    return [&window, text] {
        for (QAction* action : window.findChildren<QAction*>()) {
            if (QString(action->text()).remove('&') == text) return action->trigger();
        }
    };
}

bool WriteLines(const QString& path, const QStringList& lines) {
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write((lines.join('\n') + '\n').toUtf8()) > 0;
}

}  // namespace

VisitPlayer::VisitPlayer(Desk& desk, FrontDeskWindow& window, const QString& folder)
    : desk_(desk), window_(window), folder_(folder) {
    QDir().mkpath(folder_);
    const auto nothing = [] {};
    steps_ = {
        {false, "schedule", Press(Qt::Key_Return)},
        {false, "account", Choose(window_, "Check-in")},
        {false, "check-in", Press(Qt::Key_F2)},
        {true, "insurance", Press(Qt::Key_Escape)},
        {false, {}, Click("Choose: Procedures")},
        {true, "procedures", Press(Qt::Key_Escape)},
        {false, {}, Click("Calendar: Next visit")},
        {true, "calendar", Press(Qt::Key_Right)},
        {true, {}, Press(Qt::Key_Return)},
        {false, "ready", Click("checkInAndPost")},
        {true, "post", Press(Qt::Key_Y)},
        {false, "paid", Choose(window_, "Payment")},
        {false, "payment", Click("Calculator")},
        {true, "calculator", Press(Qt::Key_Escape)},
        {false, {}, Choose(window_, "Urgent")},
        {true, "palette", Press(Qt::Key_Escape)},
        {false, {}, Choose(window_, "Show the calls")},
        {false, "calls", Choose(window_, "Help for this screen")},
        {false, "help", nothing},
    };
}

int VisitPlayer::Play() {
    QTimer::singleShot(kPause, this, [this] { PlayNext(); });
    QCoreApplication::exec();
    const auto visits = desk_.Server().VisitsOf(kDuePatient);
    bool isPaid = false;
    for (const Visit& visit : visits) {
        isPaid =
            isPaid || (visit.day == desk_.Server().Now().date() && visit.state == VisitState::Paid);
    }
    const bool isWritten = WriteResults();
    std::printf("One visit: %d pictures in %s; %s\n", pictures_, qPrintable(folder_),
                isPaid ? "checked in and paid" : "NOT paid");
    return isPaid && isWritten ? EXIT_SUCCESS : EXIT_FAILURE;
}

// A step acts once it has found its window twice, so that the window has painted itself. The next
// one waits before this one acts, because an act may open a dialog and return only when that is
// closed.
void VisitPlayer::PlayNext() {
    if (next_ == steps_.size() || tries_ == kMostTries) return QApplication::closeAllWindows();
    const Step& step = steps_[next_];
    QTimer::singleShot(kPause, this, [this] { PlayNext(); });
    const bool isReady = (QApplication::activeModalWidget() != nullptr) == step.inDialog;
    ++tries_;
    if (!std::exchange(wasReady_, isReady) || !isReady) return;
    ++next_;
    tries_ = 0;
    wasReady_ = false;
    if (!step.picture.isEmpty()) TakePicture(step.picture);
    step.act();
}

/// The client with the dialogs in front of it.
void VisitPlayer::TakePicture(const QString& name) {
    const QScreen& screen = *window_.screen();
    QPixmap picture(screen.size() * screen.devicePixelRatio());
    picture.setDevicePixelRatio(screen.devicePixelRatio());
    picture.fill(window_.palette().color(QPalette::Mid));
    QPainter painter(&picture);
    painter.drawPixmap(window_.geometry().topLeft(), window_.grab());
    QWidgetList shown = QApplication::topLevelWidgets();
    shown << QApplication::activeModalWidget();  // in front of the others
    for (QWidget* widget : shown) {
        if (widget == nullptr || widget == &window_ || !widget->isVisible() ||
            widget->windowType() == Qt::ToolTip)
            continue;
        const QPoint place = widget->geometry().topLeft();
        painter.drawPixmap(place, widget->grab());
        painter.setPen(QColor(110, 110, 110));
        painter.drawRect(QRect(place, widget->size()).adjusted(-1, -1, 0, 0));
    }
    const QString file =
        QString("%1/%2-%3.png").arg(folder_).arg(++pictures_, 2, 10, QChar('0')).arg(name);
    if (!picture.save(file)) std::fprintf(stderr, "%s cannot be written\n", qPrintable(file));
}

bool VisitPlayer::WriteResults() {
    QStringList posted;
    for (const Payment& payment : desk_.Server().Payments(kDuePatient)) {
        posted << QString("%1 %2 posted %3, %4, receipt: %5")
                      .arg(DayText(payment.posted.date()), TimeText(payment.posted.time()),
                           Money(payment.amount), payment.method, payment.printer);
    }
    return WriteLines(folder_ + "/posted.txt", posted) &&
           WriteLines(folder_ + "/calls.txt", desk_.Calls().Lines());
}

}  // namespace frontdesk
