// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/DateText.h>
#include <halvekutils/base/Export.h>
#include <halvekutils/base/TextIn.h>
#include <halvekutils/controls/Placement.h>
#include <halvekutils/platform/Dialog.h>
#include <halvekutils/platform/Machine.h>

#include <chrono>
#include <string>

namespace halvek {

/// What a calendar is asked to show.
struct CalendarRequest {
    std::u16string dateToShow = {};   ///< the date that it opens on, see ParseDateTime
    std::u16string defaultDate = {};  ///< shown if dateToShow is not a date; empty for today
    bool needsConversions = false;    ///< the date to show may be digits, see DateOfDigits
    PopupAnchor anchor = {};          ///< where it is asked to open
};

/// The rules of the calendar, without a window: which day it opens on, how its keys move from day
/// to day and which day comes back.
///
/// One day is marked; the month that holds it is the one on view. A window draws that and forwards
/// its events. The result is the chosen day as "mm/dd/yyyy".
class HALVEK_EXPORT Calendar : public Dialog {
  public:
    /// A day of the calendar.
    using Day = std::chrono::local_days;

    /// The first day that can be chosen, 1/1/1753.
    static constexpr Day kFirstDay = Day(std::chrono::year(1753) / 1 / 1);
    /// The last day that can be chosen, 12/31/9999.
    static constexpr Day kLastDay = Day(std::chrono::year(9999) / 12 / 31);

    /// `machine` gives today's date.
    Calendar(const CalendarRequest& request, Machine& machine);
    ~Calendar() override;

    // What the window shows

    /// The machine's day when the calendar was made.
    Day Today() const { return today_; }
    /// The day that Enter chooses.
    Day MarkedDay() const { return marked_; }
    /// Where the calendar is asked to open.
    const PopupAnchor& Anchor() const { return anchor_; }

    // What the user does

    /// Marks a day without choosing it, or the nearest one that can be chosen.
    void Mark(Day day);

    /// Goes to another month and marks the same day there, or else the last.
    void ShowMonth(int year, unsigned month);

    /// The keys that the calendar knows.
    enum class Key {
        Enter,         ///< chooses the marked day
        Escape,        ///< ends without a choice
        Left,          ///< the day before
        Right,         ///< the day after
        Up,            ///< a week earlier
        Down,          ///< a week later
        PageUp,        ///< a month earlier
        PageDown,      ///< a month later
        CtrlPageUp,    ///< a year earlier
        CtrlPageDown,  ///< a year later
        Home,          ///< the first day of the month
        End,           ///< the last day of the month
        Today,         ///< the machine's day
    };
    /// A key pressed in the calendar.
    void KeyDown(Key key);

    /// Chooses a day. Does nothing for a day outside the range.
    void ClickDay(Day day);

  private:
    void MarkIn(std::chrono::year_month month);

    PopupAnchor anchor_;
    Day today_;
    Day marked_;
};

}  // namespace halvek
