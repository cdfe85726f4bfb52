// SPDX-License-Identifier: MIT
#pragma once

#include "Desk.h"

#include <QMenu>

namespace frontdesk {

/// The user's colours, the schedule's colours, and what the schedule shows. Each is stored on the
/// server at once.
QMenu* MakePreferencesMenu(Desk& desk, QWidget* parent);

}  // namespace frontdesk
