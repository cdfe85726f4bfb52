// SPDX-License-Identifier: MIT
#include "Calls.h"
#include "Desk.h"

#include <halvekutils/prefs/ReminderDefinition.h>
#include <halvekutils/qt/QtControls.h>
#include <halvekutils/qt/QtText.h>

#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QTabWidget>
#include <QTableWidget>
#include <QVBoxLayout>

#include <utility>

using namespace halvek;

namespace {

Utils& Library() {
    return *Utils::CurrentUtils();
}

/// A dialog of the host's with a button that closes it.
class HostDialog : public QDialog {
  public:
    HostDialog(QWidget& owner, const QString& title) : QDialog(&owner) {
        setObjectName(title);
        setWindowTitle(title);
        setLayout(rows_);
    }

    QString Run() {
        auto* const close = new QPushButton("Close");
        connect(close, &QPushButton::clicked, this, &QDialog::accept);
        rows_->addWidget(close);
        return exec() == Accepted ? "closed" : "escaped";
    }

    QVBoxLayout* const rows_ = new QVBoxLayout;
};

QString ShowHeadings(QWidget& owner, bool isUndone, std::int16_t border) {
    HostDialog dialog(owner, "Headings");
    auto* const label = new QLabel("Provider");
    auto* const option = new QRadioButton("Interpreter");
    auto* const check = new QCheckBox("By letter");
    auto* const field = new QLineEdit("Not a heading");
    for (QWidget* const control : {static_cast<QWidget*>(label), static_cast<QWidget*>(option),
                                   static_cast<QWidget*>(check), static_cast<QWidget*>(field)}) {
        dialog.rows_->addWidget(control);
        Library().HighlightHeading(AsHeading(control), false, border);
        if (isUndone) Library().UnhighlightHeading(AsHeading(control), false);
    }
    return dialog.Run();
}

QString ShowGridFonts(QWidget& owner) {
    HostDialog dialog(owner, "Grid fonts");
    for (int code = 0; code < 9; ++code) {
        auto* const grid = new QTableWidget(1, 2);
        grid->setItem(0, 0, new QTableWidgetItem(QString("Font %1").arg(code)));
        grid->setItem(0, 1, new QTableWidgetItem("$28.50"));
        grid->horizontalHeader()->hide();
        grid->setFixedHeight(40);
        Library().GridSetFontObject(GridFontOf(grid), QString::number(code));
        dialog.rows_->addWidget(grid);
    }
    return dialog.Run();
}

QString ShowCombo(QWidget& owner) {
    HostDialog dialog(owner, "Combo");
    auto* const combo = new QComboBox;
    combo->setFixedWidth(80);
    dialog.rows_->addWidget(combo);
    auto* const small = new QLabel("Seven points, at least");
    Library().SetFontProperties(FontOf(small));
    dialog.rows_->addWidget(small);
    Library().FillCombo(u"Dr. Adams:Dr. Baker:Nurse Yilmaz, on Mondays and Thursdays only",
                        AsComboBox(combo), true);
    Library().FindInCombo(AsComboBox(combo), u"baker", true, false);
    const QString end = dialog.Run();
    return end + ' ' + combo->currentText();
}

QString ShowReminders(QWidget& owner, const QString& data) {
    ReminderDefinition reminder;
    reminder.PopulateReminder(u"10117", data);
    HostDialog dialog(owner, "Reminders");
    auto* const tabs = new QTabWidget;
    tabs->setObjectName("Tabs");
    for (int tab = 1; tab <= reminder.Tabs().UBound(); ++tab) {
        auto* const lines = new QListWidget;
        const StringArray texts = reminder.TabData(static_cast<std::int16_t>(tab));
        for (int line = 1; line <= texts.UBound(); ++line) lines->addItem(ToQString(texts[line]));
        tabs->addTab(lines, ToQString(reminder.Tabs()[tab]));
    }
    dialog.rows_->addWidget(tabs);
    return dialog.Run() + (reminder.SoundAlert() ? " alert" : "") +
           (reminder.HasPatientSpecificData() ? " patient" : "");
}

QString ShowWindowsMenu(QWidget& owner) {
    HostDialog dialog(owner, "Windows");
    auto* const bar = new QMenuBar;
    QMenu* const menu = bar->addMenu("&Windows");
    QString chosen;
    const auto registry = Library().OpenWindows();
    registry->ClearAll();
    for (const int account : {10117, 10204, 10318}) registry->AddItem(u"Account", account);
    for (int i = 1; i <= registry->Count(); ++i) {
        const StringArray window = registry->GetItem(i);
        QString shown;
        for (int part = window.LBound(); part <= window.UBound(); ++part)
            if (!window[part].empty()) shown += ' ' + ToQString(window[part]);
        menu->addAction(QString("&%1").arg(i) + shown, &dialog,
                        [&chosen, shown] { chosen = shown; });
    }
    dialog.rows_->setMenuBar(bar);
    const QString end = dialog.Run();
    return end + chosen;
}

QString ShowWithoutCloseButton(QWidget& owner) {
    HostDialog dialog(owner, "No close button");
    Library().KillCloseButton(static_cast<std::int32_t>(dialog.winId()));
    return dialog.Run();
}

/// The cashier's window
QString ShowFields(QWidget&) {
    Desk desk(Utils::CurrentUtils());
    desk.show();
    WaitUntilClosed(desk);
    return "closed";
}

}  // namespace

std::vector<Call> HostCalls() {
    const QString reminders = QString::fromUtf16(
        u"Allergies\u00E6Penicillin\u00E6P-Latex, gloves only\u00E7Balance\u00E6-Past due 90 days"
        u"\u00E6A payment plan\u00E7Insurance\u00E6New card in February\u00A31");
    const QString fewer = QString::fromUtf16(
        u"Balance\u00E6Cash or card only\u00E7\u00E7Documents\u00E6Form expires");
    return {
        {"headings", "", [](QWidget& owner) { return ShowHeadings(owner, false, 1); }},
        {"headings bare", "", [](QWidget& owner) { return ShowHeadings(owner, false, 0); }},
        {"headings undone", "", [](QWidget& owner) { return ShowHeadings(owner, true, 1); }},
        {"grid fonts", "", ShowGridFonts},
        {"combo", "", ShowCombo},
        {"reminders", "", [=](QWidget& owner) { return ShowReminders(owner, reminders); }},
        {"reminders fewer", "", [=](QWidget& owner) { return ShowReminders(owner, fewer); }},
        {"windows", "", ShowWindowsMenu},
        {"no close button", "", ShowWithoutCloseButton},
        {"fields", "", ShowFields},
    };
}
