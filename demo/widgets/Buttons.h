// SPDX-License-Identifier: MIT
#pragma once

#include <QPushButton>

namespace frontdesk {

/// Gives a button the height and the padding that all of the client's have.
inline void MakeRoomy(QPushButton& button) {
    constexpr int kPadding = 14;
    button.setMinimumHeight(button.fontMetrics().height() + kPadding);
    button.setMinimumWidth(button.sizeHint().width() + kPadding);
}

inline QPushButton* MakeButton(const QString& text) {
    auto* button = new QPushButton(text);
    MakeRoomy(*button);
    return button;
}

}  // namespace frontdesk
