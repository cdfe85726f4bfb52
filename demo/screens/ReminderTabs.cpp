// SPDX-License-Identifier: MIT
#include "screens/ReminderTabs.h"

#include <halvekutils/qt/QtText.h>

#include <QListWidget>

#include <cstdint>

namespace frontdesk {

using halvek::StringArray;

namespace {

constexpr char kHighlightMark[] = "-";
constexpr char kPatientMark[] = "P-";
constexpr int kLinePadding = 8;

void AddTab(QTabWidget& tabs, const QString& title, const StringArray& lines) {
    constexpr int kFewestLines = 5;
    auto* list = new QListWidget;
    list->setFrameShape(QFrame::NoFrame);
    list->setSelectionMode(QAbstractItemView::NoSelection);
    list->setSizeAdjustPolicy(QAbstractScrollArea::AdjustToContents);
    list->setMinimumHeight(list->fontMetrics().height() * kFewestLines);
    list->setWordWrap(true);
    for (std::int32_t i = 1; i <= lines.UBound(); ++i) {
        const QString line = halvek::ToQString(lines[i]);
        auto* item = new QListWidgetItem(line, list);
        item->setSizeHint({0, list->fontMetrics().height() + kLinePadding});
        QFont font;
        if (line.startsWith(kPatientMark, Qt::CaseInsensitive)) {
            item->setText(line.mid(2) + "  (this patient only)");
            font.setItalic(true);
        } else if (line.startsWith(kHighlightMark)) {
            item->setText("!  " + line.mid(1));
            font.setBold(true);
        }
        item->setFont(font);
    }
    tabs.addTab(list, title);
}

}  // namespace

void ShowReminders(QTabWidget& tabs, const halvek::ReminderDefinition& reminder) {
    tabs.setAccessibleName("Reminders");
    tabs.setDocumentMode(true);
    while (tabs.count() > 0) delete tabs.widget(0);
    if (!reminder.HasData()) {
        return AddTab(tabs, "Reminders", StringArray(1, {u"None for this account"}));
    }
    // The server sends no empty tabs, so that titles and lines have the same numbers.
    const StringArray titles = reminder.Tabs();
    for (std::int16_t number = 1; number <= titles.UBound(); ++number) {
        AddTab(tabs, halvek::ToCaption(titles[number]), reminder.TabData(number));
    }
}

}  // namespace frontdesk
