// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Internal.h>
#include <halvekutils/base/TextIn.h>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

namespace halvek {

// Numbers as text and back: always with "." for the point, whatever the locale. Reading takes time
// in proportion to the text, and no result is ever minus zero.

/// The value of the number that a text starts with, after blanks: a sign, digits with at most one
/// point, an exponent. The longest such start counts; the rest is ignored.
///
/// A text that starts with no number gives 0 ("x", "", "nan"), and so does a number too small for a
/// double; one too large gives plus or minus infinity.
///
/// @code{.cpp}
/// Val(u" 12.5 mg") == 12.5;  Val(u"1e") == 1;  Val(u"1,234") == 1;
/// @endcode
double Val(TextIn text);

/// How many characters Val reads, the blanks before the number included; 0 when there is no number.
std::size_t NumberLength(TextIn text);

/// The value of a text that as a whole is a number or an amount; nothing for any other.
///
/// Blanks may surround it. A sign stands before or after it, "$" in front, before or after the
/// sign; parentheses instead of a sign make it negative. Commas may stand between any two digits of
/// the whole part. There is at most one point, with a digit beside it; an exponent may follow. A
/// number too large for a double gives nothing.
///
/// @code{.cpp}
/// ToNumber(u"$1,234.50") == 1234.5;  ToNumber(u"(5.00)") == -5;  ToNumber(u"5 mg") == nullopt;
/// @endcode
std::optional<double> ToNumber(TextIn text);

/// True for a text that ToNumber reads.
bool IsNumeric(TextIn text);

/// The nearest integer, halves to the even one. Throws Overflow for NaN and for a number outside 32
/// bits.
std::int32_t RoundToInt32(double number);

/// The number that a text starts with, rounded by RoundToInt32, which may throw Overflow.
std::int32_t ToInt32(TextIn text);

/// The number with two decimals, halves away from zero.
///
/// Rounds the number as people see it, its shortest decimal text: 2.675 gives 2.68, although the
/// double is a little less. NaN, infinity and numbers without decimals stay as they are.
double RoundToCents(double number);

/// The number with up to 15 significant digits and no trailing zeros: "0.5", "-12", "0".
///
/// From 1E+15 on, and below 0.0001, in exponent form: "1.5E+20". ToNumber reads all of these back,
/// except that the very largest doubles round up out of its range. "NaN", "Infinity" and
/// "-Infinity" are not numeric.
std::u16string NumberText(double number);

/// The integer with all its digits.
std::u16string IntegerText(std::int64_t number);
/// Appends the same to a text.
void AppendInteger(std::u16string& out, std::int64_t number);

/// "True" or "False".
HALVEK_INTERNAL std::u16string BooleanText(bool value);

}  // namespace halvek
