// SPDX-License-Identifier: MIT
#include <halvekutils/qt/helpers/PushButton.h>

#include <QPalette>
#include <QStyleOptionButton>

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>

namespace halvek {

namespace {

/// The palette of the same colours that was used first. Allocates nothing: paint events must not
/// fail.
QPalette FirstLike(const QPalette& palette) {
    static std::array<std::optional<QPalette>, 16> kept;
    static std::size_t oldest = 0;
    const auto found = std::find(kept.begin(), kept.end(), palette);
    if (found != kept.end()) return **found;
    kept[oldest] = palette;
    oldest = (oldest + 1) % kept.size();
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
