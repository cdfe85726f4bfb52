// SPDX-License-Identifier: MIT
#include <halvekutils/qt/helpers/PushButton.h>

#include <QPalette>
#include <QStyleOptionButton>

#include <algorithm>
#include <cstddef>
#include <vector>

namespace halvek {

namespace {

/// The palette of the same colours that was used first.
QPalette FirstLike(const QPalette& palette) {
    constexpr std::size_t kMostKept = 16;
    static std::vector<QPalette> kept;
    const auto found = std::ranges::find(kept, palette);
    if (found != kept.end()) return *found;
    if (kept.size() == kMostKept) kept.clear();
    kept.push_back(palette);
    return palette;
}

}  // namespace

PushButton::PushButton(const QString& caption, QWidget* parent) : QPushButton(caption, parent) {}
PushButton::~PushButton() = default;

void PushButton::initStyleOption(QStyleOptionButton* option) const {
    QPushButton::initStyleOption(option);
    const QPalette::ColorGroup group = option->palette.currentColorGroup();
    option->palette = FirstLike(option->palette);
    option->palette.setCurrentColorGroup(group);
}

}  // namespace halvek
