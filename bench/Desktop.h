// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace bench {

/// Prints what people wait for on the display at hand, each a hundred times: from the call to a
/// dialog's first paint, and from a key to the paint after it. Only rows whose names contain
/// `only`. Returns the program's exit code.
int PrintDesktop(std::string_view only);

}  // namespace bench
