// SPDX-License-Identifier: MIT
#include "Page.h"

#include <QFont>
#include <QLabel>

namespace frontdesk {

namespace {

constexpr int kMargin = 16;
constexpr double kHeadingScale = 1.5;

QLabel* MakeHeading(const QString& title) {
    auto* heading = new QLabel(title);
    QFont font = heading->font();
    font.setPointSizeF(font.pointSizeF() * kHeadingScale);
    heading->setFont(font);
    return heading;
}

}  // namespace

Page::Page(const QString& title, const QString& summary)
    : title_(title), body_(new QVBoxLayout(this)) {
    setAccessibleName(Title());
    setAccessibleDescription(summary);
    auto* summaryLabel = new QLabel(summary);
    summaryLabel->setWordWrap(true);
    body_->setContentsMargins(kMargin, 0, 0, 0);
    body_->addWidget(MakeHeading(Title()));
    body_->addWidget(summaryLabel);
    body_->addSpacing(kMargin / 2);
}

Page::~Page() = default;

}  // namespace frontdesk
