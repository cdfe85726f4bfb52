// SPDX-License-Identifier: MIT
#include <halvekutils/dialogs/Calendar.h>
#include <halvekutils/text/ServerDates.h>

#include <algorithm>
#include <optional>

namespace halvek {

using std::chrono::days;
using std::chrono::months;
using std::chrono::weeks;
using std::chrono::year_month;
using std::chrono::year_month_day;
using std::chrono::years;

namespace {

Calendar::Day DayOf(DateTime when) {
    return std::chrono::floor<days>(when);
}

bool CanBeChosen(Calendar::Day day) {
    return day >= Calendar::kFirstDay && day <= Calendar::kLastDay;
}

year_month MonthOf(Calendar::Day day) {
    const year_month_day date(day);
    return date.year() / date.month();
}

/// The day in a text, if the calendar can choose it.
std::optional<Calendar::Day> ReadDay(TextIn text, DateTime now) {
    const std::optional<DateTime> when = ParseDateTime(text, now);
    if (!when || !CanBeChosen(DayOf(*when))) return std::nullopt;
    return DayOf(*when);
}

std::u16string TextToShow(const CalendarRequest& request, Machine& machine) {
    if (!request.needsConversions) return request.dateToShow;
    return DateOfDigits(DigitsOfDate(request.dateToShow), machine);
}

}  // namespace

Calendar::Calendar(const CalendarRequest& request, Machine& machine) : anchor_(request.anchor) {
    const DateTime now = machine.Now();
    today_ = std::clamp(DayOf(now), kFirstDay, kLastDay);
    const auto fallback = ReadDay(request.defaultDate, now).value_or(today_);
    marked_ = ReadDay(TextToShow(request, machine), now).value_or(fallback);
}

Calendar::~Calendar() = default;

void Calendar::Mark(Day day) {
    if (!IsOpen()) return;
    marked_ = std::clamp(day, kFirstDay, kLastDay);
    NotifyChanged();
}

void Calendar::ShowMonth(int year, unsigned month) {
    MarkIn(std::chrono::year(year) / std::chrono::month(month));
}

void Calendar::MarkIn(year_month month) {
    const year_month_day last(month / std::chrono::last);
    Mark(Day(month / std::min(year_month_day(marked_).day(), last.day())));
}

void Calendar::KeyDown(Key key) {
    const year_month month = MonthOf(marked_);
    switch (key) {
        case Key::Enter:
            return ClickDay(marked_);
        case Key::Escape:
            return Close();
        case Key::Left:
            return Mark(marked_ - days(1));
        case Key::Right:
            return Mark(marked_ + days(1));
        case Key::Up:
            return Mark(marked_ - weeks(1));
        case Key::Down:
            return Mark(marked_ + weeks(1));
        case Key::PageUp:
            return MarkIn(month - months(1));
        case Key::PageDown:
            return MarkIn(month + months(1));
        case Key::CtrlPageUp:
            return MarkIn(month - years(1));
        case Key::CtrlPageDown:
            return MarkIn(month + years(1));
        case Key::Home:
            return Mark(Day(month / 1));
        case Key::End:
            return Mark(Day(month / std::chrono::last));
        case Key::Today:
            return Mark(today_);
    }
}

void Calendar::ClickDay(Day day) {
    if (!IsOpen() || !CanBeChosen(day)) return;
    marked_ = day;
    End(DateOnlyText(day));
}

}  // namespace halvek
