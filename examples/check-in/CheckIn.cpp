// SPDX-License-Identifier: MIT
#include "CheckIn.h"

using namespace halvek;

void CheckIn::Open(TextIn account, TextIn reminder) {
    account_ = account;
    day_.clear();
    reasons_.clear();
    reminder_ = std::make_unique<ReminderDefinition>();
    reminder_->PopulateReminder(account, reminder);
}

std::u16string CheckIn::Reminder() const {
    if (reminder_ == nullptr || !reminder_->HasData()) return {};
    std::u16string text;
    const StringArray titles = reminder_->Tabs();
    for (std::int32_t title = 1; title <= titles.UBound(); ++title) {
        text += titles[title] + u'\n';
        const StringArray lines = reminder_->TabData(reminder_->TabNumber(title));
        for (std::int32_t line = 1; line <= lines.UBound(); ++line) {
            text += u"    " + lines[line] + u'\n';
        }
    }
    return text;
}

void CheckIn::ChooseDay(const std::shared_ptr<PopupTarget>& button) {
    const auto day = utils_->ShowCalendarAndCalculateCoordinates(button, day_);
    if (!day.empty()) day_ = day;
}

void CheckIn::ChooseReasons(TextIn list, const std::shared_ptr<PopupTarget>& button) {
    const auto chosen =
        utils_->ShowSelectionGridAndCalculateCoordinates(u"Reasons", list, reasons_, button);
    if (chosen != u"CANCEL") reasons_ = chosen;  // "CANCEL": OK without a change
}

bool CheckIn::Confirm() {
    if (day_.empty()) {
        utils_->ShowMsgBox(u"Choose the day of the visit first.", mbOkOnly, mbExclamation,
                           u"Check-in");
        return false;
    }
    return utils_->ShowMsgBox(u"Check in account " + account_ + u" for " + day_ + u"?", mbYesNo,
                              mbQuestion, u"Check-in") == mbYes;
}
