// SPDX-License-Identifier: MIT
#pragma once

#include <QBoxLayout>
#include <QResizeEvent>
#include <QWidget>

namespace frontdesk {

/// Two parts beside each other, or one below the other where the window is narrow.
class Columns : public QWidget {
  public:
    Columns(QWidget* first, int firstStretch, QWidget* second, int secondStretch)
        : layout_(new QBoxLayout(QBoxLayout::LeftToRight, this)) {
        layout_->setContentsMargins(0, 0, 0, 0);
        layout_->setSpacing(16);
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

}  // namespace frontdesk
