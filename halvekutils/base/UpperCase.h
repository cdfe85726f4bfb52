// SPDX-License-Identifier: MIT
#pragma once

namespace halvek {

/// The capital letter of a small one in the alphabets of Europe, whatever the locale; any other
/// character is returned unchanged, and so is one whose capital form is two letters.
char16_t UpperCase(char16_t character) noexcept;

}  // namespace halvek
