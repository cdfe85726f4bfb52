// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/DateText.h>
#include <halvekutils/base/TextIn.h>
#include <halvekutils/platform/Machine.h>

#include <cstdint>
#include <optional>
#include <string>

namespace halvek {

class Remarks;

// The server writes a date as the number of days since 12/31/1840 and a time as seconds since
// midnight. The machine's clock says what day it is here; it is read only when needed.

/// Reads a server's text: "days", "days,seconds", or ",seconds" for a time today. Fractions are
/// ignored, a part that is not a number counts as 0, and negative numbers go back.
///
/// Returns nothing from 86,400 seconds on. The result may lie outside the range of dates. `remarks`
/// hears of the parts that count as 0 or are ignored; it may be null.
///
/// @code{.cpp}
/// ReadServerDate(u"60000,43200", machine)  // 4/10/2005 12:00:00 PM
/// @endcode
std::optional<DateTime> ReadServerDate(TextIn HDate, Machine& machine, Remarks* remarks = nullptr);

/// "3/5/2024" as "03052024": month and day get two digits, the year stays as it is. A text that
/// lacks a first slash, or a second one at its fourth character or later, just loses its slashes.
std::u16string DigitsOfDate(TextIn strDate);

/// "03052024" as "03/05/2024"; empty for a text that is not all digits, a month above 12 and a
/// year of three digits. A missing year is the current one; a year of two digits is 1930 to 2029.
/// Nothing else is checked.
std::u16string DateOfDigits(TextIn strDate, Machine& machine);

/// How many seconds the server's clock is ahead of the machine's; nothing for a text that is not a
/// date or time. Throws Overflow beyond 32 bits.
///
/// Reads what ParseDateTime does, and beyond it a comma before the time and a fraction after the
/// seconds, which is dropped: "3/7/2024, 14:05:09.75".
std::optional<std::int32_t> ServerClockOffset(TextIn timeFromServer, Machine& machine);

}  // namespace halvek
