// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Color.h>

#include <string>

namespace halvek {

/// What people call a colour: "light pink".
std::u16string ColorName(Color color);

/// A colour as pages and drawing programs write it: "#FFB6C1".
std::u16string ColorHex(Color color);

}  // namespace halvek
