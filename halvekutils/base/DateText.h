// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Export.h>
#include <halvekutils/base/TextIn.h>

#include <chrono>
#include <optional>
#include <string>

namespace halvek {

/// A date and time as a wall clock shows it, in whole seconds and without a time zone. A time of
/// midnight stands for the date alone.
using DateTime = std::chrono::local_seconds;

namespace detail {
constexpr DateTime MidnightOf(int year, unsigned month, unsigned day) {
    using namespace std::chrono;
    return local_days(
        year_month_day(std::chrono::year(year), std::chrono::month(month), std::chrono::day(day)));
}
}  // namespace detail

/// The first date and time there is, 1/1/100 00:00:00.
inline constexpr DateTime kFirstDateTime = detail::MidnightOf(100, 1, 1);
/// The last date and time there is, 12/31/9999 23:59:59.
inline constexpr DateTime kLastDateTime =
    detail::MidnightOf(9999, 12, 31) + std::chrono::days(1) - std::chrono::seconds(1);

/// The parts of a date and time.
struct DateParts {
    int year = 0;        ///< 100 to 9999
    unsigned month = 0;  ///< 1 to 12
    unsigned day = 0;    ///< 1 to 31
    int hour = 0;        ///< 0 to 23
    int minute = 0;      ///< 0 to 59
    int second = 0;      ///< 0 to 59
};

/// A date and time from its parts. Throws InvalidArgument when it does not exist, as February 30
/// does not, or lies outside the range.
HALVEK_EXPORT DateTime MakeDateTime(int year, unsigned month, unsigned day, int hour = 0,
                                    int minute = 0, int second = 0);

/// The parts of a date and time. Throws Overflow outside the range.
HALVEK_EXPORT DateParts PartsOf(DateTime when);

/// "mm/dd/yyyy hh:mm:ss AM" or PM, always with two digits for each part and four for the year; at
/// midnight, the date alone. Throws Overflow outside the range.
HALVEK_EXPORT std::u16string DateTimeText(DateTime when);

/// "mm/dd/yyyy", without the time. Throws Overflow outside the range.
HALVEK_EXPORT std::u16string DateOnlyText(DateTime when);

/// Reads a date, a date and time, or a time alone, which then belongs to the date of `today`.
/// Returns nothing for any other text, for days that do not exist and for dates outside the range.
///
/// @code{.cpp}
/// 3/7/2004  03-07-04            month, day, year, with "/" or "-"
/// 2004-03-07  2004/3/7          year first: it has four digits
/// March 7, 2004  Mar 7 2004     month names in full or their first three letters, in any case;
/// 7 Mar 2004  7-Mar-2004        the comma may be left out
/// 14:05  2:05 PM  02:05:09 pm   24-hour clock without AM or PM
/// @endcode
///
/// The time follows a date after a blank, or after "T" when the year comes first. A year of two
/// digits is 2000-2029 for 00-29 and 1930-1999 for 30-99; one of three or four digits stays as it
/// is. More blanks or TABs between the parts and around the text do not matter. Reads every text
/// that DateTimeText and DateOnlyText write.
HALVEK_EXPORT std::optional<DateTime> ParseDateTime(TextIn text, DateTime today);

}  // namespace halvek
