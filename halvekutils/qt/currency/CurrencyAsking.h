// SPDX-License-Identifier: MIT
#pragma once

#include <QEvent>
#include <QObject>
#include <QWidget>

namespace halvek {

// Buttons, shortcuts and menus may save. So they leave the currency fields of their window first,
// although the focus stays in a field.

/// True for a control that acts without valid fields: a button that rejects or helps in a
/// QDialogButtonBox, or a control or action with the host's property "causesValidation" = false.
bool PassesUnasked(const QObject& control);

/// The window whose fields are left before an event reaches its receiver; null for none.
const QWidget* WindowAskedBy(const QObject& receiver, const QEvent& event);

}  // namespace halvek
