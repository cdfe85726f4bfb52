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
/// for (const auto& title : reminder.Tabs()) tabs.add(title);
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
    /// the position of its title. An object without data returns element 0 alone; for a tab that
    /// does not exist, the array is unallocated.
    StringArray TabData(std::int16_t TabNo) const;

    /// The titles in order, from element 1. A tab with an empty title has none here.
    StringArray Tabs() const;

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
    std::vector<std::vector<std::u16string>> lines_;  // one list for each tab
};

}  // namespace halvek
