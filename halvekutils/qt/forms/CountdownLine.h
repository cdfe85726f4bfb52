// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

#include <cstdint>

namespace halvek {

class MessageBox;

/// The line along the top of a message box. It shrinks while the box counts down and disappears
/// when the countdown stops.
class CountdownLine : public QWidget {
    Q_OBJECT

  public:
    explicit CountdownLine(QWidget* parent);

    /// Shows how much of the countdown is left.
    void Follow(const MessageBox& box);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    double share_ = 0;
};

/// What a screen reader says about a box that counts down; empty for any other.
QString CountdownText(const MessageBox& box);

}  // namespace halvek
