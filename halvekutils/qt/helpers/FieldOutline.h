// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class QWidget;

namespace halvek {

/// Outlines a field on a high contrast desktop: styles draw its frame in a slightly darker tone of
/// the window, which nobody sees there.
class FieldOutline : public QObject {
    Q_OBJECT

  public:
    /// Destroyed with the field.
    /// @param field  a box of text, or any control that scrolls
    explicit FieldOutline(QWidget& field);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace halvek
