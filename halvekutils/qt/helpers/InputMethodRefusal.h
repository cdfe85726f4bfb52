// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class QWidget;

namespace halvek {

/// Keeps an input method's text away from a text that is only read: Qt lays it out there all the
/// same and may crash.
class InputMethodRefusal : public QObject {
    Q_OBJECT

  public:
    explicit InputMethodRefusal(QWidget& text);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace halvek
