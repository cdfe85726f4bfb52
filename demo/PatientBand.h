// SPDX-License-Identifier: MIT
#pragma once

#include "Desk.h"

#include <QWidget>

namespace frontdesk {

/// Who the account on the screen belongs to: name, number, birthday, balance and, when the server
/// asks for an alert, a mark. In the practice's colours.
QWidget* MakePatientBand(Desk& desk);

}  // namespace frontdesk
