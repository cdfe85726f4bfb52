// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/DateText.h>
#include <halvekutils/base/Internal.h>
#include <halvekutils/base/Remarks.h>
#include <halvekutils/base/TextIn.h>
#include <halvekutils/prefs/ReminderDefinition.h>
#include <halvekutils/refdata/CodesCollection.h>
#include <halvekutils/refdata/PrintersCollection.h>
#include <halvekutils/refdata/SecurityItemsCollection.h>
#include <halvekutils/selection/SelectionList.h>

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace halvek {

/// Reads a server's texts with the readers that a session uses, and listens to their remarks.
/// Leaves the session and its log alone. For halvekutils-check; this header is not installed.
struct HALVEK_INTERNAL ServerTextCheck {
    /// The code tables that BuildCodesCollection would make.
    static std::shared_ptr<CodesCollection> Codes(TextIn text, Remarks& remarks);

    /// The rights that BuildSecurityCollection would make; null for full access.
    static std::shared_ptr<SecurityItemsCollection> Rights(TextIn text, Remarks& remarks);

    /// The printers of the server's that BuildPrintersCollection would make.
    static std::shared_ptr<PrintersCollection> Printers(TextIn text, Remarks& remarks);

    /// The names of the settings' fields, and what a new UserPrefs would hold in them.
    static std::vector<std::pair<std::u16string_view, std::u16string>> Settings(TextIn text,
                                                                                Remarks& remarks);

    /// What PopulateReminder would make.
    static ReminderDefinition Reminder(TextIn text, Remarks& remarks);

    /// The list that a selection would show, deleted entries included.
    static SelectionList Selection(std::u16string text, Remarks& remarks);

    /// What ConvertHDate would read in each line; nothing when it returns no date.
    static std::vector<std::optional<DateTime>> Dates(TextIn text, Remarks& remarks);
};

}  // namespace halvek
