// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class QWidget;

namespace halvek {

/// Refuses the user's requests to close a window without a close button: some window managers show
/// one anyway.
///
/// Requests that do not come from the user pass: the host's, the application's when it quits and a
/// session's when it ends.
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
