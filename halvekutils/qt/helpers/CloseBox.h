// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class QWidget;

namespace halvek {

/// Refuses the user's requests to close a window that shows no close button; there are window
/// managers that ignore that it shows none.
///
/// The program's own requests pass: those of the host, of the application when it quits and of a
/// session that ends.
class CloseRefusal : public QObject {
    Q_OBJECT

  public:
    explicit CloseRefusal(QWidget& window);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

/// Takes the close button off a window, which may be on the screen and run a modal loop.
void RemoveCloseBox(QWidget& window);

}  // namespace halvek
