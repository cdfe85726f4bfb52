// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Export.h>
#include <halvekutils/base/StringArray.h>
#include <halvekutils/base/TextIn.h>

#include <cstdint>
#include <string>
#include <vector>

namespace halvek {

class Remarks;

/// The reminders that the server sends for an account: titled tabs of text lines.
///
/// A line that begins with "-" should be highlighted; a line that begins with "P-", in either
/// letter case, is patient-specific. Lines keep these marks.
///
/// @code{.cpp}
/// ReminderDefinition reminder;
/// reminder.PopulateReminder(account, server.reminder());
/// const StringArray titles = reminder.Tabs();
/// for (std::int32_t i = 1; i <= titles.UBound(); ++i) {
///     tabs.add(titles[i], reminder.TabData(reminder.TabNumber(i)));
/// }
/// @endcode
class HALVEK_EXPORT ReminderDefinition {
  public:
    ReminderDefinition();
    ~ReminderDefinition();

    /// True when the reminder asks for an audible alert.
    bool SoundAlert() const { return soundAlert_; }

    /// Reads a reminder; call it once for each object.
    ///
    /// Tabs are separated by the character of code 231, a tab's title and lines by that of code
    /// 230. The character of code 163 ends the tabs; a "1" after it asks for an alert.
    void PopulateReminder(TextIn AcctNo, TextIn ReminderData);

    /// The lines of a tab, from element 1; element 0 is empty.
    ///
    /// Tabs count from 1, including those without a title, so the number of a tab can differ from
    /// the position of its title: see TabNumber. An object without data returns element 0 alone;
    /// for a tab that does not exist, the array is unallocated.
    StringArray TabData(std::int16_t TabNo) const;

    /// The titles in order, from element 1. A tab with an empty title has none here.
    StringArray Tabs() const;

    /// The number with which TabData gives the lines below a title.
    /// @param title  the title's position in Tabs, from 1; any other gives 0, which is no tab
    std::int16_t TabNumber(std::int32_t title) const;

    /// True when a line is patient-specific.
    bool HasPatientSpecificData() const { return hasPatientSpecificData_; }

    /// True once a reminder with more than an alert was read.
    bool HasData() const { return hasData_; }

    /// The account number given to PopulateReminder.
    std::u16string AcctNo() const { return acctNo_; }

  private:
    friend struct ServerTextCheck;

    void Read(TextIn reminderData, Remarks* remarks);
    void AddTab(TextIn tab);
    void AddLine(TextIn line);

    std::u16string acctNo_;
    bool hasData_ = false;
    bool hasPatientSpecificData_ = false;
    bool soundAlert_ = false;
    std::vector<std::u16string> titles_;
    std::vector<std::int16_t> titledTabs_;            // the tab's number, one for each title
    std::vector<std::vector<std::u16string>> lines_;  // one list for each tab
};

}  // namespace halvek
