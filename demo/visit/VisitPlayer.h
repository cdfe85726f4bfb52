// SPDX-License-Identifier: MIT
#pragma once

#include "Desk.h"

#include <QString>
#include <QWidget>

namespace frontdesk {

/// Plays one visit by keys without a person, from the schedule to the payment, and leaves a picture
/// of each step in a folder, with what was posted and the calls of the library.
///
/// @return the exit code: 0 when the visit was checked in and paid
int PlayVisit(Desk& desk, QWidget& window, const QString& folder);

}  // namespace frontdesk
