// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/prefs/ReminderDefinition.h>

#include <QTabWidget>

namespace frontdesk {

/// An account's reminders, one tab for each title. Lines that the server highlights are bold, those
/// about the patient say so.
class ReminderTabs : public QTabWidget {
  public:
    ReminderTabs();

    void Show(const halvek::ReminderDefinition& reminder);

    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QWidget* MakeTab(const halvek::StringArray& lines);
};

}  // namespace frontdesk
