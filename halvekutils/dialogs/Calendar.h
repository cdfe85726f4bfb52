// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/DateText.h>
#include <halvekutils/base/Export.h>
#include <halvekutils/base/TextIn.h>
#include <halvekutils/platform/Machine.h>
#include <halvekutils/text/Placement.h>

#include <chrono>
#include <functional>
#include <string>

namespace halvek {

/// What a calendar is asked to show.
struct CalendarRequest {
    std::u16string dateToShow = {};
    std::u16string defaultDate = {};  ///< shown in its stead when that is no date; empty for today
    bool needsConversions = false;    ///< the date to show may be digits, see DateOfDigits
    PopupAnchor anchor = {};
};

/// The rules of the calendar, without a window: which day it opens on, how its keys move from day
/// to day and which day comes back.
///
/// One day is marked; the month that holds it is the one on view. A window draws that and forwards
/// its events.
class HALVEK_EXPORT Calendar {
  public:
    using Day = std::chrono::local_days;

    /// The days that can be chosen: 1/1/1753 to 12/31/9999.
    static constexpr Day kFirstDay = Day(std::chrono::year(1753) / 1 / 1);
    static constexpr Day kLastDay = Day(std::chrono::year(9999) / 12 / 31);

    /// `machine` tells what day it is.
    Calendar(const CalendarRequest& request, Machine& machine);
    ~Calendar();
    Calendar(const Calendar&) = delete;
    Calendar& operator=(const Calendar&) = delete;

    /// Called after every change that the window shows, and once when the calendar ends.
    std::function<void()> Changed;

    // What the window shows

    Day Today() const { return today_; }
    Day MarkedDay() const { return marked_; }
    const PopupAnchor& Anchor() const { return anchor_; }
    bool IsOpen() const { return open_; }

    // What the user does

    /// Marks a day without choosing it; the nearest that can be chosen.
    void Mark(Day day);

    /// Goes to another month, to the marked day of the month or else the last.
    void ShowMonth(int year, unsigned month);

    enum class Key {
        Enter,   ///< chooses the marked day
        Escape,  ///< ends without a choice
        Left,    ///< arrows move by a day or a week
        Right,
        Up,
        Down,
        PageUp,  ///< the pages move by a month, with Ctrl by a year
        PageDown,
        CtrlPageUp,
        CtrlPageDown,
        Home,  ///< the first and the last day of the month
        End,
        Today,
    };
    void KeyDown(Key key);

    /// Chooses a day. One that cannot be chosen does nothing.
    void ClickDay(Day day);

    /// Ends without a choice: the button, the close box, or the window has gone.
    void Close();

    /// The chosen day as "mm/dd/yyyy"; empty without a choice.
    TextIn ReturnValue() const { return result_; }

  private:
    void MarkIn(std::chrono::year_month month);
    void End();
    void NotifyChanged() const;

    PopupAnchor anchor_;
    Day today_;
    Day marked_;
    std::u16string result_;
    bool open_ = true;
};

}  // namespace halvek
