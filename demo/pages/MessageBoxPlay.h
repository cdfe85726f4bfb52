// SPDX-License-Identifier: MIT
#pragma once

namespace frontdesk {

class MessageBoxPage;
class Tour;

/// Shows every button set, icon, background and font, texts at the limits of the layout and every
/// way of ending a box.
void PlayMessageBoxes(MessageBoxPage& page, Tour& tour);

}  // namespace frontdesk
