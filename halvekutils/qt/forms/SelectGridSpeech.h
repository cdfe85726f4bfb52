// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/qt/helpers/SpokenPicker.h>

namespace halvek {

class SelectGrid;

/// The current entry of a selection dialog as screen readers say it.
SpokenEntry SpokenEntryOf(const SelectGrid& rules);

/// The same in one sentence, for when the focus is elsewhere.
QString SpokenTextOf(const SelectGrid& rules);

}  // namespace halvek
