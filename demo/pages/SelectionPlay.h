// SPDX-License-Identifier: MIT
#pragma once

namespace frontdesk {

class SelectionPage;
class Tour;

/// Chooses codes from typical lists and lists at the limits by keys and clicks, types what is
/// refused, and opens lists in every way.
void PlaySelections(SelectionPage& page, Tour& tour);

}  // namespace frontdesk
