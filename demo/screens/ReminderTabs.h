// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/prefs/ReminderDefinition.h>

#include <QTabWidget>

namespace frontdesk {

/// Shows an account's reminders, one tab for each title. Lines that the server highlights are bold,
/// those about the patient say so.
void ShowReminders(QTabWidget& tabs, const halvek::ReminderDefinition& reminder);

}  // namespace frontdesk
