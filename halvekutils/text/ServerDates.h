// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/DateText.h>
#include <halvekutils/base/TextIn.h>
#include <halvekutils/platform/Machine.h>

#include <cstdint>
#include <optional>
#include <string>

namespace halvek {

// The server writes a date as the number of days since 12/31/1840 and a time as seconds since
// midnight. The machine's clock tells what day it is here; it is read only where it is needed.

/// What a server's text stands for: "days", "days,seconds", or ",seconds" for a time today. Integer
/// parts count, a part that is no number is 0, and negative counts go back.
///
/// Nothing when there are 86,400 seconds or more. The result may lie outside of the range of dates.
///
///     ReadServerDate(u"60000,43200", machine)  // 4/10/2005 12:00:00 PM
std::optional<DateTime> ReadServerDate(TextIn HDate, Machine& machine);

/// "3/5/2024" as "03052024": month and day get two digits, the year stays as it is. A text without
/// a first slash and a further one, at its fourth character or later, loses the slashes it has.
std::u16string DigitsOfDate(TextIn strDate);

/// "03052024" as "03/05/2024"; "" for what is not all digits, a month above 12 and a year of three
/// digits. No year is the current one; one of two digits is 1930 to 2029. Nothing else is checked.
std::u16string DateOfDigits(TextIn strDate, Machine& machine);

/// DateOfDigits when `bConvert` is true, else DigitsOfDate.
std::u16string ConvertNumberToDate(TextIn strDate, bool bConvert, Machine& machine);

/// How many seconds the server's clock is ahead of the machine's; nothing for a text that is no
/// date or time. Throws Overflow beyond 32 bits.
///
/// Reads what ParseDateTime does, and beyond it a comma before the time and a fraction behind the
/// seconds, which is dropped: "3/7/2024, 14:05:09.75".
std::optional<std::int32_t> ServerClockOffset(TextIn timeFromServer, Machine& machine);

}  // namespace halvek
