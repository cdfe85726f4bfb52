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

    /// Turns white; a flash that is still to be seen starts anew.
    void Flash();
    /// Gives the old background back, as time does too.
    void EndFlash();

  private:
    QTimer timer_{this};
};

}  // namespace halvek
