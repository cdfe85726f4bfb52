// SPDX-License-Identifier: MIT
#include <halvekutils/base/CaseFolding.h>
#include <halvekutils/base/NumericText.h>
#include <halvekutils/base/Pieces.h>
#include <halvekutils/platform/Guard.h>
#include <halvekutils/prefs/ReminderDefinition.h>

#include <cstddef>

namespace halvek {

namespace {

constexpr char16_t kAlertMark = 163;
constexpr char16_t kLineSeparator = 230;
constexpr char16_t kTabSeparator = 231;

}  // namespace

ReminderDefinition::ReminderDefinition() = default;
ReminderDefinition::~ReminderDefinition() = default;

void ReminderDefinition::PopulateReminder(TextIn AcctNo, TextIn ReminderData) {
    Quietly(false, [&] {
        acctNo_ = AcctNo;
        const std::size_t alert = ReminderData.find(kAlertMark);
        if (alert != TextIn::npos) soundAlert_ = Val(ReminderData.substr(alert + 1, 1)) == 1;
        const TextIn tabs = ReminderData.substr(0, alert);
        if (tabs.empty()) return false;
        hasData_ = true;
        titles_.clear();
        titledTabs_.clear();
        lines_.clear();
        for (const TextIn tab : Pieces(tabs, kTabSeparator)) AddTab(tab);
        return true;
    });
}

StringArray ReminderDefinition::TabData(std::int16_t TabNo) const {
    return Quietly(StringArray(), [&]() -> StringArray {
        StringArray data(0, 0);
        if (!hasData_) return data;
        if (TabNo < 1 || static_cast<std::size_t>(TabNo) > lines_.size()) return {};
        for (const std::u16string& line : lines_[static_cast<std::size_t>(TabNo) - 1]) {
            data.Append(line);
        }
        return data;
    });
}

StringArray ReminderDefinition::Tabs() const {
    return StringArray(1, titles_);
}

std::int16_t ReminderDefinition::TabNumber(std::int32_t title) const {
    if (title < 1 || static_cast<std::size_t>(title) > titledTabs_.size()) return 0;
    return titledTabs_[static_cast<std::size_t>(title) - 1];
}

void ReminderDefinition::AddTab(TextIn tab) {
    lines_.emplace_back();
    bool isTitle = true;
    for (const TextIn element : Pieces(tab, kLineSeparator)) {
        if (!element.empty()) {
            if (isTitle) {
                titledTabs_.push_back(static_cast<std::int16_t>(lines_.size()));
                titles_.push_back(element.Str());
            } else {
                AddLine(element);
            }
        }
        isTitle = false;
    }
}

void ReminderDefinition::AddLine(TextIn line) {
    lines_.back().push_back(line.Str());
    if (StartsFolded(line, u"p-")) hasPatientSpecificData_ = true;
}

}  // namespace halvek
