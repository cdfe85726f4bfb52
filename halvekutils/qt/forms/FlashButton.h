// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/qt/helpers/PushButton.h>

#include <QTimer>

namespace halvek {

/// A button that turns white for a moment when it is pressed in any way; nothing waits for the
/// flash.
class FlashButton : public PushButton {
    Q_OBJECT

  public:
    FlashButton(const QString& caption, QWidget* parent);

    /// Sets the button's ordinary colours.
    void SetTone(const QPalette& tone);

    /// Turns white; restarts a flash that is still running.
    void Flash();
    /// Restores the ordinary background, as the end of the time does.
    void EndFlash();

  private:
    QPalette tone_;
    QTimer timer_{this};
};

}  // namespace halvek
