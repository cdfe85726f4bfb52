// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/TextIn.h>

#include <optional>
#include <string>

namespace halvek {

/// The message for a range whose upper amount is below its lower one; nothing when the range is in
/// order.
///
/// Amounts are compared in single precision. Zero or a non-number passes. Throws Overflow for an
/// amount beyond single precision.
std::optional<std::u16string> RangeComplaint(TextIn strMin, TextIn strMax, TextIn lblMin,
                                             TextIn lblMax);

}  // namespace halvek
