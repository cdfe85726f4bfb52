// SPDX-License-Identifier: MIT
#pragma once

namespace frontdesk {

class SelectionPage;
class Tour;

/// Chooses codes from typical and extreme lists by keys and clicks, types codes that are refused,
/// and opens lists in every possible way.
void PlaySelections(SelectionPage& page, Tour& tour);

}  // namespace frontdesk
