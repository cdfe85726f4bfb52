// SPDX-License-Identifier: MIT
#pragma once

#include "Desk.h"
#include "Page.h"

#include <memory>
#include <vector>

namespace frontdesk {

/// The pages of the client, in the order of its list and menu.
std::vector<std::unique_ptr<Page>> MakePages(Desk& desk);

}  // namespace frontdesk
