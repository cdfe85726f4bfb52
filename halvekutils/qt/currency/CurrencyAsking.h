// SPDX-License-Identifier: MIT
#pragma once

#include <QEvent>
#include <QObject>
#include <QWidget>

namespace halvek {

// What makes the currency fields of a window be left first, although the focus stays in them:
// buttons, shortcuts and menus, which may save.

/// True for what needs no valid fields: buttons that reject or help in a QDialogButtonBox, and
/// whatever a host marks by the property "causesValidation" = false.
bool PassesUnasked(const QObject& control);

/// The window whose fields are left before an event reaches its receiver; null for none.
const QWidget* WindowAskedBy(const QObject& receiver, const QEvent& event);

}  // namespace halvek
