// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Color.h>
#include <halvekutils/prefs/ReminderDefinition.h>

#include <QDialog>
#include <QTabWidget>

namespace frontdesk {

/// An account's reminders, one tab for each title. Marked lines get a word, bold or italic type
/// and, if highlighted, a colour.
class ReminderWindow : public QDialog {
  public:
    struct Highlight {
        halvek::Color back;
        halvek::Color fore;
    };

    ReminderWindow(const halvek::ReminderDefinition& reminder, const Highlight& highlight,
                   QWidget* parent);

  private:
    void AddTabs(const halvek::ReminderDefinition& reminder);
    QWidget* MakeLines(const halvek::StringArray& lines);

    Highlight highlight_;
    QTabWidget tabs_;
};

}  // namespace frontdesk
