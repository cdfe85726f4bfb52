// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>
#include <QString>
#include <QVBoxLayout>
#include <QWidget>

namespace frontdesk {

// Distances that all screens share, in pixels
inline constexpr int kMargin = 16;
inline constexpr int kGap = 10;

/// A part of a screen: a rounded surface with a heading.
class Card : public QWidget {
  public:
    explicit Card(const QString& heading);

    /// What the card holds, below its heading.
    QVBoxLayout& Content() { return *content_; }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QVBoxLayout* content_;
};

/// A note: plain text of less weight, that wraps where there is little room.
QLabel* MakeNote(const QString& text = {});

/// The colour between two, `share` hundredths of the first.
QColor Mixed(const QColor& first, const QColor& second, int share);

/// Outlines that can be seen on light and dark surfaces, but stay quiet.
QColor OutlineColor(const QPalette& palette);

/// Text of less weight: notes and headings.
QColor QuietColor(const QPalette& palette);

}  // namespace frontdesk
