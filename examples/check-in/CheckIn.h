// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/core/Utils.h>
#include <halvekutils/prefs/ReminderDefinition.h>

#include <memory>
#include <string>

/// A patient at the desk: what the form shows and does, without a window, so that a test can play
/// it.
class CheckIn {
  public:
    explicit CheckIn(std::shared_ptr<halvek::Utils> utils) : utils_(std::move(utils)) {}

    /// Opens an account with the reminder that the server sent for it.
    void Open(halvek::TextIn account, halvek::TextIn reminder);

    /// The reminder as lines: each title, and indented below it what it says.
    std::u16string Reminder() const;

    /// Lets the user choose the day of the visit, beside a button.
    void ChooseDay(const std::shared_ptr<halvek::PopupTarget>& button = nullptr);

    /// Lets the user choose reasons from the server's list.
    void ChooseReasons(halvek::TextIn list,
                       const std::shared_ptr<halvek::PopupTarget>& button = nullptr);

    /// Asks whether all is right; true once the user has said yes.
    bool Confirm();

    const std::u16string& Day() const { return day_; }
    const std::u16string& Reasons() const { return reasons_; }

  private:
    std::shared_ptr<halvek::Utils> utils_;
    std::unique_ptr<halvek::ReminderDefinition> reminder_;
    std::u16string account_;
    std::u16string day_;
    std::u16string reasons_;
};
