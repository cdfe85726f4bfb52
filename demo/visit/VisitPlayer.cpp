// SPDX-License-Identifier: MIT
#include "visit/VisitPlayer.h"

#include "Texts.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QKeyEvent>
#include <QKeySequence>
#include <QObject>
#include <QPainter>
#include <QScreen>
#include <QTimer>

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <utility>

namespace frontdesk {

namespace {

constexpr std::chrono::milliseconds kPause(60);
constexpr int kMostTries = 500;

struct Step {
    bool inDialog;        ///< where the key goes; the step waits for this
    const char* picture;  ///< taken before the key; null for none
    const char* keys;
};

constexpr Step kSteps[] = {
    {false, "schedule", "Return"},   {false, "account", "Ctrl+3"}, {false, "check-in", "F2"},
    {true, "insurance", "Esc"},      {false, nullptr, "Tab"},      {false, nullptr, "Tab"},
    {false, nullptr, "F2"},          {true, "procedures", "Esc"},  {false, nullptr, "Tab"},
    {false, nullptr, "F2"},          {true, "calendar", "Right"},  {true, nullptr, "Return"},
    {false, "ready", "Ctrl+Return"}, {true, "post", "Y"},          {false, "paid", "Ctrl+4"},
    {false, "payment", "Ctrl+K"},    {true, "calculator", "Esc"},  {false, nullptr, "Ctrl+L"},
    {false, "calls", "F1"},          {false, "help", ""},
};

bool WriteLines(const QString& path, const QStringList& lines) {
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write((lines.join('\n') + '\n').toUtf8()) > 0;
}

class VisitPlayer : public QObject {
  public:
    VisitPlayer(Desk& desk, QWidget& window, const QString& folder)
        : desk_(desk), window_(window), folder_(folder) {}

    int Play() {
        QDir().mkpath(folder_);
        QTimer::singleShot(kPause, this, &VisitPlayer::PlayNext);
        QCoreApplication::exec();
        const auto visits = desk_.Server().VisitsOf(kDuePatient);
        const bool isPaid = std::any_of(visits.begin(), visits.end(), [this](const Visit& visit) {
            return visit.day == desk_.Server().Now().date() && visit.state == VisitState::Paid;
        });
        const bool isWritten = WriteResults();
        std::printf("One visit: %d pictures in %s; %s\n", pictures_, qPrintable(folder_),
                    isPaid ? "checked in and paid" : "NOT paid");
        return isPaid && isWritten ? EXIT_SUCCESS : EXIT_FAILURE;
    }

  private:
    // A step acts once it has found its window twice, so that the window has painted itself. The
    // next one waits before this one acts, because a key may open a dialog and return only when
    // that is closed.
    void PlayNext() {
        if (next_ == std::size(kSteps) || tries_ == kMostTries)
            return QApplication::closeAllWindows();
        const Step& step = kSteps[next_];
        QTimer::singleShot(kPause, this, &VisitPlayer::PlayNext);
        const bool isReady = (QApplication::activeModalWidget() != nullptr) == step.inDialog;
        ++tries_;
        if (!std::exchange(wasReady_, isReady) || !isReady) return;
        ++next_;
        tries_ = 0;
        wasReady_ = false;
        if (step.picture != nullptr) TakePicture(step.picture);
        Press(QKeySequence(step.keys));
    }

    // What has the keys as its shortcut acts, or else the widget that has the keyboard gets them:
    // posted keys start no shortcuts.
    void Press(const QKeySequence& keys) {
        if (keys.isEmpty()) return;
        for (QObject* object : window_.findChildren<QObject*>()) {
            const bool isUsable =
                object->property("visible").toBool() && object->property("enabled").toBool();
            if (!isUsable || object->property("shortcut").value<QKeySequence>() != keys) continue;
            QMetaObject::invokeMethod(object, object->inherits("QAction") ? "trigger" : "click");
            return;
        }
        QWidget* target = QApplication::focusWidget();
        if (target == nullptr) return;
        const int key = keys[0].key();
        const QString text = key < 128 ? QString(QChar(key)).toLower() : QString();
        for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QCoreApplication::postEvent(target, new QKeyEvent(type, key, Qt::NoModifier, text));
        }
    }

    /// The client with the dialogs in front of it.
    void TakePicture(const QString& name) {
        const QScreen& screen = *window_.screen();
        QPixmap picture(screen.size() * screen.devicePixelRatio());
        picture.setDevicePixelRatio(screen.devicePixelRatio());
        picture.fill(window_.palette().color(QPalette::Mid));
        QPainter painter(&picture);
        painter.setPen(Qt::gray);
        QWidgetList shown = QApplication::topLevelWidgets();
        shown.removeOne(&window_);
        shown.prepend(&window_);
        shown << QApplication::activeModalWidget();  // in front of the others
        for (QWidget* widget : shown) {
            if (widget == nullptr || !widget->isVisible() || widget->windowType() == Qt::ToolTip)
                continue;
            const QRect place(widget->geometry().topLeft(), widget->size());
            painter.drawPixmap(place.topLeft(), widget->grab());
            painter.drawRect(place.adjusted(-1, -1, 0, 0));
        }
        const QString file =
            QString("%1/%2-%3.png").arg(folder_).arg(++pictures_, 2, 10, QChar('0')).arg(name);
        if (!picture.save(file)) std::fprintf(stderr, "%s cannot be written\n", qPrintable(file));
    }

    bool WriteResults() {
        QStringList posted;
        for (const Payment& payment : desk_.Server().Payments(kDuePatient)) {
            posted << QString("%1 %2 posted %3, %4, receipt: %5")
                          .arg(DayText(payment.posted.date()), TimeText(payment.posted.time()),
                               Money(payment.amount), payment.method, payment.printer);
        }
        return WriteLines(folder_ + "/posted.txt", posted) &&
               WriteLines(folder_ + "/calls.txt", desk_.Calls().Lines());
    }

    Desk& desk_;
    QWidget& window_;
    QString folder_;
    std::size_t next_ = 0;
    int pictures_ = 0;
    int tries_ = 0;
    bool wasReady_ = false;
};

}  // namespace

int PlayVisit(Desk& desk, QWidget& window, const QString& folder) {
    return VisitPlayer(desk, window, folder).Play();
}

}  // namespace frontdesk
