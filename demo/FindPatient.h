// SPDX-License-Identifier: MIT
#pragma once

#include "Desk.h"

#include <QLineEdit>

namespace frontdesk {

/// A field that finds a patient by number or name while the user types; Enter opens the account.
QLineEdit* MakeFindPatient(Desk& desk);

}  // namespace frontdesk
