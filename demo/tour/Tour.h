// SPDX-License-Identifier: MIT
#pragma once

#include "CallLog.h"
#include "tour/TourSteps.h"
#include "tour/Watchdog.h"

#include <QFile>
#include <QObject>
#include <QString>
#include <QTimer>
#include <QWidget>

#include <cstddef>
#include <functional>
#include <vector>

namespace frontdesk {

/// Plays the client without a person: answers dialogs through real events, takes pictures, and
/// writes every call with its result to results.txt in the tour's folder.
///
///     tour.Answer("delete a visit", {tour.Snapshot("delete"), PressKey("arrCmd_0", Qt::Key_Y)},
///                 [&] { showButton->click(); });
class Tour {
  public:
    /// Throws std::runtime_error when the folder cannot be written.
    Tour(const QString& folder, CallLog& calls);

    /// Opens a dialog and performs the steps in it, or in a dialog on top of it. The call must end
    /// after the last step.
    void Answer(const QString& name, std::vector<TourStep> steps,
                const std::function<void()>& open);

    /// Takes a picture of the dialog, pixel for pixel.
    TourStep Snapshot(const QString& picture);

    /// Expects that something holds in the dialog.
    TourStep Check(const QString& what, std::function<bool(QWidget& dialog)> holds);

    /// Takes a picture of a window outside a dialog, once it has settled.
    void Picture(QWidget& window, const QString& name);

    void Expect(bool met, const QString& what);
    void ExpectResult(const QString& call, const QString& result, const QString& expected);

    /// A longer stretch without dialogs begins.
    void Begin(const QString& name) { watchdog_.Begin(name.toStdString()); }

    /// Writes the summary. Returns the exit code: 0 when all went as expected.
    int Finish();

  private:
    void Tick();
    void RunStep(QWidget& dialog);
    void SavePicture(QWidget& window, const QString& name);
    void WriteLine(const QString& line);
    [[noreturn]] void GiveUp(const QString& why);

    QString folder_;
    QFile results_;
    Watchdog watchdog_;
    QTimer timer_;
    QString dialogName_;
    std::vector<TourStep> steps_;
    std::size_t nextStep_ = 0;
    QWidget* dialog_ = nullptr;  ///< the one on top, only to recognise it
    int ticksOpen_ = 0;
    int dialogs_ = 0;
    int pictures_ = 0;
    int failures_ = 0;
};

}  // namespace frontdesk
