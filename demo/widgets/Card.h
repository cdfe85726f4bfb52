// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Color.h>

#include <QBoxLayout>
#include <QColor>
#include <QLabel>
#include <QPalette>
#include <QResizeEvent>
#include <QString>
#include <QWidget>

namespace frontdesk {

// Distances that all screens share, in pixels
inline constexpr int kMargin = 16;
inline constexpr int kGap = 10;

/// A part of a screen: a rounded surface with a heading.
class Card : public QWidget {
  public:
    /// @param content  what fills the card, if that is one widget
    explicit Card(const QString& heading, QWidget* content = nullptr);

    /// What the card holds, below its heading.
    QVBoxLayout& Content() { return *content_; }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QVBoxLayout* content_;
};

/// Two parts beside each other, or one below the other where the window is narrow.
class Columns : public QWidget {
  public:
    Columns(QWidget* first, int firstStretch, QWidget* second, int secondStretch)
        : layout_(new QBoxLayout(QBoxLayout::LeftToRight, this)) {
        layout_->setContentsMargins(0, 0, 0, 0);
        layout_->setSpacing(kMargin);
        layout_->addWidget(first, firstStretch);
        layout_->addWidget(second, secondStretch);
    }

  protected:
    void resizeEvent(QResizeEvent* event) override {
        const bool isNarrow =
            event->size().width() < fontMetrics().averageCharWidth() * kFewestLetters;
        layout_->setDirection(isNarrow ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    }

  private:
    static constexpr int kFewestLetters = 110;

    QBoxLayout* layout_;
};

/// A note: plain text of less weight, that wraps where there is little room.
QLabel* MakeNote(const QString& text = {});

/// Makes a font larger by a factor, and bold.
void Emphasize(QWidget& widget, qreal scale = 1);

/// The library's colour as Qt has it.
QColor ToQColor(halvek::Color color);

/// The colour between two, `share` hundredths of the first.
QColor Mixed(const QColor& first, const QColor& second, int share);

/// Text of less weight: notes and headings.
QColor QuietColor(const QPalette& palette);

/// Gives a widget the library's colours, as its background and for its text.
void SetColors(QWidget& widget, halvek::Color back, halvek::Color text);

}  // namespace frontdesk
