// SPDX-License-Identifier: MIT
#pragma once

#include <QPushButton>
#include <QTimer>

namespace halvek {

/// A button that turns white for a moment when it is pressed in any way; nothing waits for that.
class FlashButton : public QPushButton {
    Q_OBJECT

  public:
    FlashButton(const QString& caption, QWidget* parent);

    /// The colours that it has when it does not flash.
    void SetTone(const QPalette& tone);

    /// Turns white; a flash that is still to be seen starts anew.
    void Flash();
    /// Gives the old background back, as time does too.
    void EndFlash();

  private:
    QPalette tone_;
    QTimer timer_{this};
};

}  // namespace halvek
