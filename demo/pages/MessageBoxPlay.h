// SPDX-License-Identifier: MIT
#pragma once

namespace frontdesk {

class MessageBoxPage;
class Tour;

/// Shows every button set, icon, background and font and texts at the limits of the layout, and
/// ends boxes in every possible way.
void PlayMessageBoxes(MessageBoxPage& page, Tour& tour);

}  // namespace frontdesk
