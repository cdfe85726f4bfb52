// SPDX-License-Identifier: MIT
#include "tour/Tour.h"

#include <QApplication>
#include <QDir>
#include <QPixmap>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <stdexcept>
#include <utility>

namespace frontdesk {

namespace {

constexpr std::chrono::seconds kPatience(60);
constexpr std::chrono::milliseconds kTick(15);
// By then a new window has painted itself.
constexpr int kTicksToSettle = 3;

}  // namespace

Tour::Tour(const QString& folder, CallLog& calls)
    : folder_(folder), results_(folder + "/results.txt"), watchdog_(kPatience) {
    if (!QDir().mkpath(folder) || !results_.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
        throw std::runtime_error(("cannot write to " + folder).toStdString());
    }
    for (const QString& line : calls.Lines()) WriteLine(line);
    calls.Listen([this](const QString& line) { WriteLine(line); });
    QObject::connect(&timer_, &QTimer::timeout, [this] { Tick(); });
}

void Tour::Answer(const QString& name, std::vector<TourStep> steps,
                  const std::function<void()>& open) {
    Begin(name);
    dialogName_ = name;
    steps_ = std::move(steps);
    nextStep_ = 0;
    dialog_ = nullptr;
    ticksOpen_ = 0;
    timer_.start(kTick);
    open();
    timer_.stop();
    ++dialogs_;
    Expect(ticksOpen_ > 0, name + ": a dialog opens");
    Expect(nextStep_ == steps_.size(), name + ": the dialog stays open for all steps");
}

void Tour::Tick() {
    QWidget* dialog = QApplication::activeModalWidget();
    if (dialog == nullptr || !dialog->isVisible()) return;
    if (std::exchange(dialog_, dialog) != dialog) ticksOpen_ = 0;
    if (++ticksOpen_ < kTicksToSettle || nextStep_ == steps_.size()) return;
    try {
        RunStep(*dialog);
    } catch (const std::exception& caught) {
        GiveUp(dialogName_ + ": " + caught.what());
    }
}

void Tour::RunStep(QWidget& dialog) {
    // Counted first, because a step may end the dialog at once.
    const TourStep& step = steps_[nextStep_++];
    if (!step.run(dialog)) --nextStep_;
}

TourStep Tour::Snapshot(const QString& picture) {
    return {[=, this](QWidget& dialog) {
        SavePicture(dialog, picture);
        return true;
    }};
}

TourStep Tour::Check(const QString& what, std::function<bool(QWidget& dialog)> holds) {
    return {[=, this, holds = std::move(holds)](QWidget& dialog) {
        Expect(holds(dialog), dialogName_ + ": " + what);
        return true;
    }};
}

void Tour::Picture(QWidget& window, const QString& name) {
    QCoreApplication::processEvents();
    SavePicture(window, name);
}

void Tour::SavePicture(QWidget& window, const QString& name) {
    const QPixmap picture = window.grab();
    const QString file = folder_ + '/' + name + ".png";
    const bool saved = picture.save(file);
    pictures_ += saved;
    Expect(saved, "the picture " + file + " is saved");
}

void Tour::Expect(bool met, const QString& what) {
    if (met) return;
    ++failures_;
    WriteLine("FAILED: " + what);
    std::fprintf(stderr, "FAILED: %s\n", qPrintable(what));
}

void Tour::ExpectResult(const QString& call, const QString& result, const QString& expected) {
    Expect(result == expected, call + " gave " + result + " instead of " + expected);
}

int Tour::Finish() {
    Begin("the end");
    const QString summary =
        QString("%1 dialogs, %2 pictures, %3 failures").arg(dialogs_).arg(pictures_).arg(failures_);
    WriteLine(summary);
    std::printf("Tour: %s; see %s\n", qPrintable(summary), qPrintable(folder_));
    return failures_ == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}

void Tour::WriteLine(const QString& line) {
    results_.write(line.toUtf8() + '\n');
    results_.flush();
}

void Tour::GiveUp(const QString& why) {
    Expect(false, why);
    std::_Exit(EXIT_FAILURE);
}

}  // namespace frontdesk
