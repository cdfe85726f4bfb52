// SPDX-License-Identifier: MIT
#include "Pictures.h"

#include "Calls.h"
#include "Record.h"
#include "Seen.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QKeySequence>
#include <QPainter>
#include <QTest>

#include <cstdio>
#include <cstdlib>

namespace {

constexpr int kTick = 10;  // in milliseconds
constexpr int kSteadyTicks = 2;
constexpr int kCalmTicks = 20;  // longer than a pressed button is white
constexpr int kPatience = 3000;

// What the stories call a key, and Qt
constexpr struct {
    const char *name, *key;
} kKeys[] = {{"Back", "Shift+Tab"},     {"PageDown", "PgDown"}, {"PageUp", "PgUp"},
             {"Delete", "Del"},         {"Enter", "Return"},    {"Escape", "Esc"},
             {"BackSpace", "Backspace"}};

void Press(QWidget& window, const QString& step) {
    QString name = step;
    for (const auto& [ours, theirs] : kKeys)
        if (("+" + step).endsWith(QString("+") + ours))
            name = step.chopped(QLatin1String(ours).size()) + theirs;
    const QKeySequence keys = QKeySequence::fromString(name);
    if (keys.isEmpty() || keys[0].key() == Qt::Key_unknown) qFatal("no key %s", qPrintable(step));
    QTest::keyClick(window.windowHandle(), keys[0].key(), keys[0].keyboardModifiers());
}

/// The call that "@open=NAME" names, or "@open" in a story "NAME" or "NAME: more".
QString OpenedBy(const QString& step, const QString& story) {
    return step.contains('=') ? step.section('=', 1) : story.section(':', 0, 0);
}

/// All windows but the stage, as they lie on the screen.
QImage Screen(const QWidget& stage) {
    QRect area;
    QList<QWidget*> shown;
    for (QWidget* const window : QApplication::topLevelWidgets()) {
        if (window == &stage || !window->isVisible() || window->inherits("QTipLabel")) continue;
        // What is in front is painted last.
        shown.insert(window == Front(nullptr) ? shown.size() : 0, window);
        area |= window->frameGeometry();
    }
    if (shown.isEmpty()) return {};
    const qreal scale = stage.devicePixelRatioF();
    QImage image((QSizeF(area.size()) * scale).toSize(), QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    image.fill(0x808080);
    QPainter painter(&image);
    for (QWidget* const window : shown)
        painter.drawPixmap(window->geometry().topLeft() - area.topLeft(), window->grab());
    return image;
}

}  // namespace

Pictures::Pictures(const QString& stories, const QString& folder) : folder_(folder) {
    QFile file(stories);
    if (!file.open(QIODevice::ReadOnly) || !QDir().mkpath(folder))
        qFatal("cannot read %s or write to %s", qPrintable(stories), qPrintable(folder));
    for (const QString& line : QString::fromUtf8(file.readAll()).split('\n'))
        if (line.count('|') == 2 && !line.startsWith('#')) stories_ += line;
    Record::Listener = [this](const QString& line) {
        got_ += (got_.isEmpty() ? "" : "; ") + QString(line).remove("got ");
    };
    stage_.show();
}

int Pictures::Play() {
    QObject::connect(&timer_, &QTimer::timeout, [this] { Tick(); });
    timer_.start(kTick);
    QApplication::exec();
    std::printf("%d pictures, %d failures; see %s\n", allPictures_, failures_, qPrintable(folder_));
    return failures_ == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}

void Pictures::Begin() {
    if (stories_.isEmpty()) return QCoreApplication::quit();
    const QStringList parts = stories_.takeFirst().split('|');
    name_ = parts[0].trimmed();
    steps_ = parts[1].simplified().split(' ');
    wanted_ = parts[2].trimmed();
    got_.clear();
    pictures_ = late_ = 0;
}

/// Takes the next step after a while, a picture once nothing changes any more.
void Pictures::Tick() {
    // An act has had its effect when it has returned or another window is in front.
    if (isActing_ && Front(nullptr) == actedOn_) return;
    const bool isPicture = !steps_.isEmpty() && steps_.first() == "@picture";
    const QImage now = isPicture ? Screen(stage_) : QImage();
    calm_ = now == seen_ ? calm_ + 1 : 0;
    seen_ = now;
    if (calm_ < (isPicture ? kCalmTicks : kSteadyTicks)) return;
    calm_ = 0;
    if (!steps_.isEmpty()) return TakeStep(steps_.takeFirst().replace('~', ' '));
    // A countdown may still run. A window that nobody closes is closed here, and its story fails.
    QWidget* const left = Front(nullptr);
    if (left != nullptr && ++late_ > kPatience) left->close();
    if (isOpen_) return;
    Judge();
    Begin();
}

void Pictures::TakeStep(const QString& step) {
    QWidget& front = *Front(&stage_);
    if (step == "@picture") return Save();
    if (step.startsWith('?')) return Record::Got(step.mid(1), TextSeen(front, step.mid(1)) + "");
    if (step == "@closed") return;
    isActing_ = true;
    actedOn_ = Front(nullptr);
    // Beside the timer, which goes on in the loop of a dialog that the act opens
    QTimer::singleShot(0, &front, [this, step, &front] {
        Act(front, step);
        isActing_ = false;
    });
}

void Pictures::OpenCall(const QString& name) {
    isOpen_ = true;
    stage_.Open(name);
    isOpen_ = false;
}

void Pictures::Act(QWidget& front, const QString& step) {
    if (step.startsWith("@open")) return OpenCall(OpenedBy(step, name_));
    if (step == "@close") return static_cast<void>(front.windowHandle()->close());
    if (!step.startsWith('\'')) return Press(front, step);
    for (const QChar key : step.mid(1, step.size() - 2))
        QTest::keyClick(front.windowHandle(), key.toLatin1());
}

void Pictures::Save() {
    const QString number = pictures_++ == 0 ? "" : QString("-%1").arg(pictures_);
    const QString name = QString(name_).remove(':').replace(' ', '-') + number;
    if (!seen_.save(folder_ + '/' + name + ".png")) qFatal("cannot save %s", qPrintable(name));
    ++allPictures_;
}

void Pictures::Judge() {
    if (late_ > kPatience) got_ += " and a window is left open";
    if (got_ == wanted_ || name_.isEmpty()) return;
    std::printf("FAILED: %s: gives %s instead of %s\n", qPrintable(name_), qPrintable(got_),
                qPrintable(wanted_));
    ++failures_;
}
