// SPDX-License-Identifier: MIT
#pragma once

#include "Desk.h"

#include <QtWidgets>

/// Carries out the commands that the player of the stories writes to the standard input, one a
/// line:
///
///     new desk|stage [PLACE]   a new window in the place of the old one; "window ID"
///     front                    the id of the window in front
///     where NAME               "at X Y" on the screen, or "nowhere"
///     read NAME[.PART]         puts on record what a person sees of a control
///     picture FILE             draws the window in front
///     load FIELD TEXT          the program sets a text
///     clipboard|locale TEXT    what the desktop offers; ";" ends a line
///     slow-hand                both clicks of a double click may be far apart
///     await MARKS CLICKS [pointer [NAME]]
///                              "done" once all that was done before has had its effect; "missed"
///                              when the pointer is not over the host or its control; "stuck:" and
///                              what is not there yet when it never comes
///
/// The player marks the end of an act by a property of a window that the host names at first, which
/// comes in order with the keys. Clicks come later, since the window manager looks at them first;
/// they are counted. An act has had its effect when no event is left and the window in front has
/// the keyboard.
class Conversation : public QObject, public QAbstractNativeEventFilter {
  public:
    Conversation();

    bool nativeEventFilter(const QByteArray& type, void* message, qintptr*) override;

  private:
    void Listen();
    void Answer(const QString& line);
    void Renew(const QString& window);
    void AnswerWhere(const QString& name) const;
    void Check();
    bool IsSettled() const;
    bool IsPointerThere();
    QString State() const;

    std::unique_ptr<QWidget> window_;
    QFile input_;
    QTimer check_;
    QWindow marked_;  ///< never shown
    int marksSeen_ = 0;
    int clicksSeen_ = 0;
    int marksAwaited_ = 0;
    int clicksAwaited_ = 0;
    bool pointerAwaited_ = false;  ///< over a window of this program
    QString controlAwaited_;       ///< under the pointer
    QPointer<QWidget> front_;      ///< at the last look for the pointer
    QElapsedTimer sinceInFront_;
    bool isAsked_ = false;
    int looks_ = 0;  ///< since it was asked
    int calm_ = 0;   ///< rounds of the event loop without news
};
