// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/dialogs/MessageBox.h>

#include <QPalette>

namespace halvek {

/// The desktop's palette in the colours of a message box: its background and its text, which stays
/// readable when the two are alike.
QPalette MessagePalette(const MessageBoxColors& colors, const QPalette& desktop);

/// The same for its buttons.
QPalette MessageButtonPalette(const MessageBoxColors& colors, const QPalette& desktop);

}  // namespace halvek
