// SPDX-License-Identifier: MIT
#pragma once

#include "Desk.h"
#include "Page.h"

#include <halvekutils/prefs/ReminderDefinition.h>

#include <QComboBox>
#include <QLineEdit>

namespace frontdesk {

/// The reminders that opening an account shows.
class RemindersPage : public Page {
  public:
    explicit RemindersPage(Desk& desk);

    int HelpContext() const override { return kRemindersTopic; }
    void Play(Tour& tour) override;

  private:
    void Open();
    void ShowValues(const halvek::ReminderDefinition& reminder);
    void Note(const halvek::ReminderDefinition& reminder, const QString& sent);

    Desk& desk_;
    QComboBox account_;
    QLineEdit* data_;
    QLineEdit* titles_;
    QLineEdit* hasData_;
    QLineEdit* hasPatientData_;
    QLineEdit* alert_;
};

}  // namespace frontdesk
