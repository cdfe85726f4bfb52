// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Export.h>
#include <halvekutils/base/TextIn.h>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

namespace halvek {

// Amounts as text, and as whole cents where a host counts. No fraction is ever binary, so a field
// shows exactly what the user typed.

/// The most digits before the point.
inline constexpr std::size_t kWholeDigits = 7;
/// The most digits after the point.
inline constexpr std::size_t kFractionDigits = 2;

/// Whether the amounts of a field may be negative.
enum class AmountSign {
    Unsigned,  ///< they may not
    Signed,    ///< they may
};

/// The number with thousands commas and two decimals, halves rounded away from zero.
///
/// Takes digits with at most one point, a leading sign, and commas between thousands; anything else
/// is a TypeMismatch. Zero has no sign.
///
/// @code{.cpp}
/// FormatAmount(u"1234.5") == u"1,234.50";  FormatAmount(u"-.005") == u"-0.01";
/// @endcode
HALVEK_EXPORT std::u16string FormatAmount(TextIn text);

/// A number of cents as FormatAmount shows it.
///
/// @code{.cpp}
/// FormatCents(123450) == u"1,234.50";  FormatCents(-5) == u"-0.05";
/// @endcode
HALVEK_EXPORT std::u16string FormatCents(std::int64_t cents);

/// The cents of an amount that BareAmount can read, halves of a cent rounded away from zero;
/// nothing for any other text, the empty one too, and for more cents than 64 bits hold.
///
/// @code{.cpp}
/// CentsIn(u"$1,234.50") == 123450;  CentsIn(u"$-5.00") == -500;  !CentsIn(u"");
/// @endcode
HALVEK_EXPORT std::optional<std::int64_t> CentsIn(TextIn text);

/// True for a text that a field may hold while the user types: a "-" where amounts have signs, up
/// to seven digits, a point and up to two digits; each of these may still be missing.
HALVEK_EXPORT bool IsTypedAmount(TextIn text, AmountSign sign);

/// The bare number in a text from elsewhere, of any length; a negative one starts with "-".
///
/// The text may have blanks and line ends around it, a "$" before or after the sign, blanks after
/// the "$", and commas between thousands; parentheses make a signed amount negative. Nothing when
/// the text cannot be read, or can be read in two ways: "1.234,50", "1,23", "1 234".
///
/// @code{.cpp}
/// BareAmount(u"$1,234.50", AmountSign::Unsigned) == u"1234.50";
/// BareAmount(u"(5.00)", AmountSign::Signed) == u"-5.00";
/// @endcode
HALVEK_EXPORT std::optional<std::u16string> BareAmount(TextIn text, AmountSign sign);

/// The text a field holds after an edit (a paste, say) that yields `text`: the same or the bare
/// amount in it. Nothing when it cannot be read or has too many digits.
HALVEK_EXPORT std::optional<std::u16string> TypedAmount(TextIn text, AmountSign sign);

}  // namespace halvek
