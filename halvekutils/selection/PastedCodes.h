// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Internal.h>
#include <halvekutils/base/TextIn.h>

#include <string>

namespace halvek {

/// A text that is pasted into the box of typed codes: line ends, tabs and ";" become commas, one
/// for all that stand side by side; none is left at an end. Any other text stays as it is.
HALVEK_INTERNAL std::u16string PastedCodes(TextIn text);

}  // namespace halvek
