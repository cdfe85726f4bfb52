// SPDX-License-Identifier: MIT
#include <halvekutils/dialogs/MessageBox.h>
#include <halvekutils/dialogs/MessageBoxButtons.h>
#include <halvekutils/qt/forms/CountdownLine.h>
#include <halvekutils/qt/helpers/Design.h>
#include <halvekutils/qt/helpers/EventGuard.h>

#include <QPainter>

namespace halvek {

namespace {

constexpr int kHeight = 4;

QString Duration(std::int32_t seconds) {
    constexpr std::int32_t kMinute = 60;
    if (seconds == 1) return CountdownLine::tr("1 second");
    if (seconds < 2 * kMinute || seconds % kMinute != 0) {
        return CountdownLine::tr("%1 seconds").arg(seconds);
    }
    return CountdownLine::tr("%1 minutes").arg(seconds / kMinute);
}

}  // namespace

CountdownLine::CountdownLine(QWidget* parent) : QWidget(parent) {
    setObjectName(QLatin1String("Countdown"));
    setAccessibleName(tr("Countdown"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFixedHeight(kHeight);
}

void CountdownLine::Follow(const MessageBox& box) {
    setVisible(box.CountdownRunning());
    if (!box.CountdownRunning()) return;
    share_ = static_cast<double>(box.SecondsLeft()) / box.CountdownSeconds();
    update();
}

void CountdownLine::paintEvent(QPaintEvent*) {
    GuardEvent(u"frmMessageBox.Countdown_Paint", [this] {
        const QColor ground = palette().color(QPalette::Window);
        const QColor line = design::Visible(palette().color(QPalette::Highlight), ground);
        QPainter painter(this);
        painter.fillRect(rect(), design::Blended(line, ground, 20));
        painter.fillRect(QRectF(0, 0, width() * share_, height()), line);
    });
}

QString CountdownText(const MessageBox& box) {
    if (!box.CountdownRunning()) return {};
    const QString duration = Duration(box.SecondsLeft());
    // A box without buttons has nothing that could take a key.
    return ButtonCount(box.Buttons()) == 0
               ? CountdownLine::tr("Closes by itself after %1").arg(duration)
               : CountdownLine::tr("Closes by itself after %1; any key stops it").arg(duration);
}

}  // namespace halvek
