// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QWidget>

class QPainter;
class QRectF;

namespace halvek {

/// Paints picture number `number` (1 to 8, in the order question, information, exclamation,
/// critical, trash, print, reminder, exclamation-critical) into the square `area`; any other number
/// paints nothing. The pictures read on light, dark and coloured backgrounds alike, and the
/// painter's state is left as it was.
void PaintMessageIcon(QPainter& painter, int number, const QRectF& area);

/// The word for a picture that a screen reader says, such as "Question"; empty for an unknown
/// number.
QString MessageIconName(int number);

/// Image1: shows one picture, as large as the widget allows and centred in it; at first none.
class MessageIcon : public QWidget {
    Q_OBJECT

  public:
    explicit MessageIcon(QWidget* parent);

    /// Shows another picture and takes its word as the accessible name.
    void SetNumber(int number);
    int Number() const { return number_; }

    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    int number_ = 0;
};

}  // namespace halvek
