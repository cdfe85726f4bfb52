// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Export.h>
#include <halvekutils/base/TextIn.h>

#include <cstddef>
#include <optional>
#include <string>

namespace halvek {

// Amounts as text. They are never turned into binary numbers: what was typed is what is shown.

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
/// Takes digits with at most one point, a sign in front, and commas that part the whole digits into
/// thousands; anything else is a TypeMismatch. Zero has no sign.
///
///     FormatAmount(u"1234.5") == u"1,234.50";  FormatAmount(u"-.005") == u"-0.01";
HALVEK_EXPORT std::u16string FormatAmount(TextIn text);

/// True for what a field may hold while it is typed into: a "-" where amounts have signs, up to
/// seven digits, a point and up to two digits; each of these may still be missing.
HALVEK_EXPORT bool IsTypedAmount(TextIn text, AmountSign sign);

/// The bare number that a text from elsewhere stands for, with "-" in front of a negative one; of
/// any length.
///
/// Around the text there may be blanks and line ends. "$" stands in front, before or after the
/// sign; parentheses make a signed amount negative; commas part thousands. Nothing when the text
/// cannot be read, or could be read in two ways as "1.234,50", "1,23" and "1 234" can.
///
///     BareAmount(u"$1,234.50", AmountSign::Unsigned) == u"1234.50";
///     BareAmount(u"(5.00)", AmountSign::Signed) == u"-5.00";
HALVEK_EXPORT std::optional<std::u16string> BareAmount(TextIn text, AmountSign sign);

/// What a field is to hold when the user's doing, a paste say, would make it hold this text: the
/// text itself or the bare amount in it. Nothing when it cannot be read or has too many digits.
HALVEK_EXPORT std::optional<std::u16string> TypedAmount(TextIn text, AmountSign sign);

}  // namespace halvek
