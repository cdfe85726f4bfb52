// SPDX-License-Identifier: MIT
#include <halvekutils/qt/forms/FlashButton.h>

#include <chrono>

namespace halvek {

namespace {

constexpr std::chrono::milliseconds kFlash(50);

}  // namespace

FlashButton::FlashButton(const QString& caption, QWidget* parent) : PushButton(caption, parent) {
    timer_.setSingleShot(true);
    timer_.setTimerType(Qt::PreciseTimer);
    timer_.setInterval(kFlash);
    connect(&timer_, &QTimer::timeout, this, &FlashButton::EndFlash);
}

void FlashButton::SetTone(const QPalette& tone) {
    tone_ = tone;
    setPalette(tone);
}

void FlashButton::Flash() {
    QPalette white = tone_;
    white.setColor(QPalette::Button, Qt::white);
    white.setColor(QPalette::ButtonText, Qt::black);
    setPalette(white);
    timer_.start();
}

void FlashButton::EndFlash() {
    timer_.stop();
    setPalette(tone_);
}

}  // namespace halvek
