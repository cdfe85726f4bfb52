// SPDX-License-Identifier: MIT
#include "pages/RemindersPage.h"

#include "ReminderWindow.h"
#include "Shown.h"
#include "tour/Tour.h"
#include "widgets/Fields.h"

#include <halvekutils/qt/QtText.h>

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QTabWidget>

namespace frontdesk {

using halvek::ReminderDefinition;
using halvek::ToQString;

namespace {

// Accounts of reminders.txt that open no window.
constexpr int kAlertOnly = 3;
constexpr int kNothing = 4;

QString YesNo(bool value) {
    return value ? "Yes" : "No";
}

}  // namespace

RemindersPage::RemindersPage(Desk& desk)
    : Page("Rem&inders", "What the server, here reminders.txt, sends when an account is opened."),
      desk_(desk),
      data_(MakeReadOnlyLine()),
      titles_(MakeReadOnlyLine()),
      hasData_(MakeReadOnlyLine()),
      hasPatientData_(MakeReadOnlyLine()),
      alert_(MakeReadOnlyLine()) {
    for (const Reminder& each : desk_.Data().Reminders()) {
        account_.addItem(each.account, each.data);
    }
    auto* label = new QLabel("&Account");
    label->setBuddy(&account_);
    account_.setAccessibleName("Account");
    auto* row = new QHBoxLayout;
    row->addWidget(&account_);
    row->addWidget(MakeButton("&Open account", [this] { Open(); }));
    row->addStretch();
    auto* form = new QFormLayout;
    form->addRow(label, row);
    AddRow(*form, "Reminder text", data_);
    AddRow(*form, "Tabs", titles_);
    AddRow(*form, "HasData", hasData_);
    AddRow(*form, "HasPatientSpecificData", hasPatientData_);
    AddRow(*form, "SoundAlert", alert_);
    Body().addLayout(form);
    Body().addStretch();
}

void RemindersPage::Open() {
    const QString sent = account_.currentData().toString();
    ReminderDefinition reminder;
    reminder.PopulateReminder(account_.currentText(), sent);
    Note(reminder, sent);
    ShowValues(reminder);
    data_->setText(sent);
    data_->setCursorPosition(0);
    if (reminder.SoundAlert()) QApplication::beep();
    if (!reminder.HasData()) return;
    const OtherSettings settings = desk_.Data().StartOtherSettings();
    ReminderWindow(reminder, {settings.highlightBack, settings.highlightFore}, window()).exec();
}

void RemindersPage::ShowValues(const ReminderDefinition& reminder) {
    QStringList titles;
    for (const std::u16string& title : reminder.Tabs()) titles << ToQString(title);
    titles_->setText(titles.join(", "));
    hasData_->setText(YesNo(reminder.HasData()));
    hasPatientData_->setText(YesNo(reminder.HasPatientSpecificData()));
    alert_->setText(YesNo(reminder.SoundAlert()));
}

void RemindersPage::Note(const ReminderDefinition& reminder, const QString& sent) {
    CallLog& calls = desk_.Calls();
    calls.Add("reminder.PopulateReminder", Args(reminder.AcctNo(), sent));
    calls.Add("reminder.Tabs", {}, Shown(reminder.Tabs()));
    std::int16_t number = 1;
    for (halvek::StringArray lines = reminder.TabData(number); lines.IsAllocated();
         lines = reminder.TabData(number)) {
        calls.Add("reminder.TabData", Args(number), Shown(lines));
        if (!reminder.HasData()) break;
        ++number;
    }
    calls.Add("reminder.SoundAlert", {}, Shown(reminder.SoundAlert()));
}

void RemindersPage::Play(Tour& tour) {
    const struct {
        int tabs;
        int lastTab;
        const char* firstLine;  ///< of the last tab
    } windows[] = {
        {3, 2, "New card in February"},
        {2, 1, "French, interpreter for forms"},
        {2, 1, "Consent form expires this year"},
    };
    account_.setCurrentIndex(kAlertOnly);
    Open();
    tour.ExpectResult("an alert alone", hasData_->text() + alert_->text(), "NoYes");
    account_.setCurrentIndex(kNothing);
    Open();
    tour.ExpectResult("an account without reminders", hasData_->text() + alert_->text(), "NoNo");
    int index = 0;
    for (const auto& each : windows) {
        account_.setCurrentIndex(index);
        const QString name = "reminders-" + account_.itemText(index++);
        const auto tabsOf = [](QWidget& dialog) { return dialog.findChild<QTabWidget*>("tabs"); };
        const auto showTab = [=](int tab) {
            return TourStep{[=](QWidget& dialog) {
                tabsOf(dialog)->setCurrentIndex(tab);
                return true;
            }};
        };
        const auto holds = [=](QWidget& dialog) {
            const auto* lines = dynamic_cast<QListWidget*>(tabsOf(dialog)->currentWidget());
            return tabsOf(dialog)->count() == each.tabs && lines->item(0)->text() == each.firstLine;
        };
        tour.Answer(name,
                    {tour.Snapshot(name), showTab(each.lastTab), tour.Snapshot(name + "-last-tab"),
                     tour.Check("the last tab has its own lines", holds), Click("close")},
                    [this] { Open(); });
    }
}

}  // namespace frontdesk
