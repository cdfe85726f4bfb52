// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class QWidget;

namespace halvek {

/// The ring on top of a button that has the focus; some styles mark the focus with a line that
/// nobody sees.
class FocusRing : public QObject {
    Q_OBJECT

  public:
    /// Destroyed with the button.
    explicit FocusRing(QWidget& button);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace halvek
