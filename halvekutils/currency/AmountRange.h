// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/TextIn.h>

#include <optional>
#include <string>

namespace halvek {

/// What to tell the user about a range whose upper amount is below its lower one; nothing when the
/// range is in order.
///
/// Amounts are compared in single precision. One that is 0 or no number is in order with any other;
/// throws Overflow for one that single precision does not hold.
std::optional<std::u16string> RangeComplaint(TextIn strMin, TextIn strMax, TextIn lblMin,
                                             TextIn lblMax);

}  // namespace halvek
