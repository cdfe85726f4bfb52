// SPDX-License-Identifier: MIT
#include <halvekutils/base/CaseFolding.h>
#include <halvekutils/base/NumericText.h>
#include <halvekutils/base/Pieces.h>
#include <halvekutils/base/Remarks.h>
#include <halvekutils/platform/Guard.h>
#include <halvekutils/prefs/ReminderDefinition.h>

#include <cstddef>

namespace halvek {

namespace {

constexpr char16_t kAlertMark = 163;
constexpr char16_t kLineSeparator = 230;
constexpr char16_t kTabSeparator = 231;

void RemarkOnTab(TextIn tab, Remarks& remarks) {
    remarks.NextRecord();
    if (tab.empty()) {
        remarks.Add(RemarkKind::Ignored, 0, tab, u"empty tab: no title, but it counts for TabData");
        return;
    }
    std::size_t field = 0;
    for (const TextIn element : Pieces(tab, kLineSeparator)) {
        if (element.empty() && field == 0) {
            remarks.Add(RemarkKind::Defaulted, field, element,
                        u"tab without a title: its lines are in TabData only");
        } else if (element.empty()) {
            remarks.Add(RemarkKind::Ignored, field, element, u"empty line skipped");
        }
        ++field;
    }
}

void RemarkOnAlert(TextIn alert, Remarks& remarks) {
    remarks.NextRecord();
    const TextIn digit = alert.substr(0, 1);
    if (digit != u"0" && digit != u"1") {
        remarks.Add(RemarkKind::Defaulted, 0, digit,
                    u"alert " + Quoted(digit) + u" is neither 0 nor 1: no alert");
    }
    if (alert.size() > 1) {
        remarks.Add(RemarkKind::Ignored, 0, alert.substr(1),
                    Quoted(alert.substr(1)) + u" after the alert is ignored");
    }
}

}  // namespace

ReminderDefinition::ReminderDefinition() = default;
ReminderDefinition::~ReminderDefinition() = default;

void ReminderDefinition::PopulateReminder(TextIn AcctNo, TextIn ReminderData) {
    Quietly(false, [&] {
        acctNo_ = AcctNo;
        Read(ReminderData, nullptr);
        return true;
    });
}

void ReminderDefinition::Read(TextIn reminderData, Remarks* remarks) {
    if (remarks != nullptr) remarks->Begin(reminderData);
    const std::size_t alert = reminderData.find(kAlertMark);
    if (alert != TextIn::npos) soundAlert_ = Val(reminderData.substr(alert + 1, 1)) == 1;
    const TextIn tabs = reminderData.substr(0, alert);
    if (!tabs.empty()) {
        hasData_ = true;
        titles_.clear();
        titledTabs_.clear();
        lines_.clear();
        for (const TextIn tab : Pieces(tabs, kTabSeparator)) {
            if (remarks != nullptr) RemarkOnTab(tab, *remarks);
            AddTab(tab);
        }
    }
    if (remarks != nullptr && alert != TextIn::npos) {
        RemarkOnAlert(reminderData.substr(alert + 1), *remarks);
    }
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
