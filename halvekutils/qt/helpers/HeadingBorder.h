// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class QWidget;

namespace halvek {

/// The thin line around a highlighted label. It is painted on top of the label and takes no room,
/// so nothing on the form moves when it comes and goes.
class HeadingBorder : public QObject {
    Q_OBJECT

  public:
    explicit HeadingBorder(QWidget& label);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

/// Turns the line around a control on or off.
void SetHeadingBorder(QWidget& control, bool on);

}  // namespace halvek
