// SPDX-License-Identifier: MIT
#include <halvekutils/base/Characters.h>
#include <halvekutils/base/NumericText.h>
#include <halvekutils/base/Remarks.h>
#include <halvekutils/base/RuntimeError.h>
#include <halvekutils/text/ServerDates.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstddef>
#include <limits>

namespace halvek {

namespace {

using std::chrono::seconds;

constexpr DateTime kDayZero = detail::MidnightOf(1840, 12, 31);
constexpr std::int64_t kSecondsInDay = 86'400;
constexpr std::u16string_view kDigits = u"0123456789";

/// A count of days or seconds, limited to a number that is still beyond every date.
std::int64_t CountIn(TextIn text) {
    constexpr std::int64_t kFar = 1'000'000'000'000;
    std::int64_t count = 0;
    for (const char16_t digit : text) {
        if (!IsDigit(digit) || count > kFar) {
            return static_cast<std::int64_t>(std::clamp<double>(Val(text), -kFar, kFar));
        }
        count = 10 * count + (digit - u'0');
    }
    return std::min(count, kFar);
}

void RemarkOnCount(TextIn text, std::size_t field, std::u16string_view name, Remarks& remarks) {
    const FieldRemarks on(remarks, field, name, text);
    if (!on.OnNumber()) return;
    const double number = Val(text);
    if (number != std::trunc(number))
        on.AddWithText(RemarkKind::Ignored, u": the fraction is ignored");
}

void RemarkOn(TextIn date, std::size_t comma, Remarks& remarks) {
    if (comma != 0) RemarkOnCount(date.substr(0, comma), 0, u"day", remarks);
    if (comma == TextIn::npos) return;
    const TextIn time = date.substr(comma + 1);
    RemarkOnCount(time, 1, u"time", remarks);
    if (CountIn(time) < kSecondsInDay) return;
    FieldRemarks(remarks, 1, u"time", time)
        .AddWithText(RemarkKind::Ignored, u" of 86,400 seconds or more: no date");
}

DateTime DayOf(TextIn count) {
    return kDayZero + seconds(kSecondsInDay * CountIn(count));
}

DateTime Today(Machine& machine) {
    return std::chrono::floor<std::chrono::days>(machine.Now());
}

/// Puts a "0" before a single digit.
void AppendPadded(std::u16string& out, TextIn part) {
    const TextIn digits = Trimmed(part);
    out.append(digits.size() < 2 ? 2 - digits.size() : 0, u'0').append(digits);
}

/// The year in four digits, from one with none or two; empty for a year that no date has.
std::u16string FullYear(TextIn year, Machine& machine) {
    if (year.size() == 1 || year.size() > 3) return year.Str();
    if (year.size() == 3) return {};
    const DateTime now = machine.Now();
    const auto date = year.empty() ? now : ParseDateTime(u"1/1/" + year.Str(), now);
    return date ? DateOnlyText(*date).substr(6) : std::u16string();
}

/// "hh:mm:ss.fff" without the fraction.
void DropFraction(std::u16string& text) {
    const std::size_t second = text.find(u':', text.find(u':') + 1);
    const std::size_t point = text.find(u'.');
    if (second == text.npos || point == text.npos || point - second != 3) return;
    const std::size_t end = std::min(text.find_first_not_of(kDigits, point + 1), text.size());
    if (end - point > 1) text.erase(point, end - point);
}

/// "mm/dd/yyyy, hh:mm" without the comma.
void DropCommaBeforeTime(std::u16string& text) {
    const std::size_t colon = text.find(u':');
    if (colon == text.npos || colon == 0) return;
    const std::size_t comma = text.find_last_not_of(u"0123456789 \t", colon - 1);
    if (comma == text.npos || comma == 0 || text[comma] != u',') return;
    const std::size_t date = text.find_last_not_of(u" \t", comma - 1);
    if (date != text.npos && IsDigit(text[date])) text[comma] = u' ';
}

}  // namespace

std::optional<DateTime> ReadServerDate(TextIn HDate, Machine& machine, Remarks* remarks) {
    const std::size_t comma = HDate.find(u',');
    if (remarks != nullptr) RemarkOn(HDate, comma, *remarks);
    if (comma == TextIn::npos) return DayOf(HDate);
    const std::int64_t time = CountIn(HDate.substr(comma + 1));
    if (time >= kSecondsInDay) return std::nullopt;
    return (comma == 0 ? Today(machine) : DayOf(HDate.substr(0, comma))) + seconds(time);
}

std::u16string DigitsOfDate(TextIn strDate) {
    constexpr std::size_t kFirstPlaceOfSecond = 3;
    const std::size_t first = strDate.find(u'/');
    const std::size_t second = first == TextIn::npos
                                   ? TextIn::npos
                                   : strDate.find(u'/', std::max(first + 1, kFirstPlaceOfSecond));
    std::u16string digits;
    digits.reserve(strDate.size() + 2);
    if (second == TextIn::npos) {
        digits = strDate;
        std::erase(digits, u'/');
    } else {
        AppendPadded(digits, strDate.substr(0, first));
        AppendPadded(digits, strDate.substr(first + 1, second - first - 1));
        digits += strDate.substr(second + 1);
    }
    const TextIn trimmed = Trimmed(digits);
    return trimmed.size() == digits.size() ? digits : trimmed.Str();
}

std::u16string DateOfDigits(TextIn strDate, Machine& machine) {
    constexpr std::size_t kDayAt = 2;
    constexpr std::size_t kYearAt = 4;
    constexpr double kLastMonth = 12;
    const TextIn digits = Trimmed(strDate);
    if (digits.empty() || digits.find_first_not_of(kDigits) != TextIn::npos) return {};
    const TextIn month = digits.substr(0, kDayAt);
    const TextIn day = digits.substr(std::min(kDayAt, digits.size()), kYearAt - kDayAt);
    const std::u16string year = FullYear(digits.substr(std::min(kYearAt, digits.size())), machine);
    if (Val(month) > kLastMonth || year.empty()) return {};
    std::u16string date;
    date.reserve(10);
    AppendPadded(date, month);
    date += u'/';
    AppendPadded(date, day);
    date += u'/';
    date += year;
    return date;
}

std::optional<std::int32_t> ServerClockOffset(TextIn timeFromServer, Machine& machine) {
    using Limits = std::numeric_limits<std::int32_t>;
    const DateTime now = machine.Now();
    std::u16string text(timeFromServer);
    DropFraction(text);
    DropCommaBeforeTime(text);
    const std::optional<DateTime> server = ParseDateTime(text, now);
    if (!server) return std::nullopt;
    const std::int64_t offset = (*server - now).count();
    if (offset < Limits::min() || offset > Limits::max()) throw RuntimeError(Fault::Overflow);
    return static_cast<std::int32_t>(offset);
}

}  // namespace halvek
