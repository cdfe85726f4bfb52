// SPDX-License-Identifier: MIT
#include "ReminderWindow.h"

#include "widgets/ColorButton.h"

#include <halvekutils/qt/QtText.h>

#include <QDialogButtonBox>
#include <QFont>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include <cstdint>
#include <vector>

namespace frontdesk {

using halvek::ReminderDefinition;
using halvek::StringArray;
using halvek::ToQString;

namespace {

constexpr QSize kSize(460, 320);
constexpr int kLinePadding = 8;
constexpr char kHighlightMark[] = "-";
constexpr char kPatientMark[] = "P-";

/// The lines of the tabs that have a title. A tab without a title also has a number.
std::vector<StringArray> TitledTabs(const ReminderDefinition& reminder) {
    std::vector<StringArray> tabs;
    std::int16_t number = 1;
    for (StringArray lines = reminder.TabData(number); lines.IsAllocated();
         lines = reminder.TabData(++number)) {
        tabs.push_back(lines);
    }
    const StringArray titles = reminder.Tabs();
    if (static_cast<int>(tabs.size()) > titles.UBound()) {
        std::erase_if(tabs, [](const StringArray& lines) { return lines.UBound() == 0; });
    }
    return tabs;
}

QListWidgetItem* MakeLine(const QString& line, const ReminderWindow::Highlight& highlight) {
    auto* item = new QListWidgetItem(line);
    QFont font;
    if (line.startsWith(kPatientMark, Qt::CaseInsensitive)) {
        item->setText("Patient: " + line.mid(2));
        font.setItalic(true);
    } else if (line.startsWith(kHighlightMark)) {
        item->setText("Important: " + line.mid(1));
        item->setBackground(ToQColor(highlight.back));
        item->setForeground(ToQColor(highlight.fore));
        font.setBold(true);
    }
    item->setFont(font);
    return item;
}

}  // namespace

ReminderWindow::ReminderWindow(const ReminderDefinition& reminder, const Highlight& highlight,
                               QWidget* parent)
    : QDialog(parent), highlight_(highlight) {
    setAttribute(Qt::WA_KeyboardFocusChange);  // shows at once where the focus is
    setWindowTitle("Reminders of account " + ToQString(reminder.AcctNo()));
    auto* column = new QVBoxLayout(this);
    if (reminder.HasPatientSpecificData()) {
        column->addWidget(new QLabel("Some lines concern one patient of the account only."));
    }
    AddTabs(reminder);
    column->addWidget(&tabs_, 1);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    buttons->button(QDialogButtonBox::Close)->setObjectName("close");
    buttons->button(QDialogButtonBox::Close)->setAutoDefault(false);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    column->addWidget(buttons);
    resize(kSize);
}

void ReminderWindow::AddTabs(const ReminderDefinition& reminder) {
    tabs_.setObjectName("tabs");
    tabs_.setAccessibleName("Reminders");
    tabs_.setDocumentMode(true);
    const StringArray titles = reminder.Tabs();
    std::int32_t number = 0;
    for (const StringArray& lines : TitledTabs(reminder)) {
        if (++number > titles.UBound()) break;
        tabs_.addTab(MakeLines(lines), ToQString(titles[number]).replace("&", "&&"));
    }
}

QWidget* ReminderWindow::MakeLines(const StringArray& lines) {
    auto* list = new QListWidget;
    list->setSelectionMode(QAbstractItemView::NoSelection);
    list->setWordWrap(true);
    for (std::int32_t i = 1; i <= lines.UBound(); ++i) {
        QListWidgetItem* item = MakeLine(ToQString(lines[i]), highlight_);
        item->setSizeHint({0, list->fontMetrics().height() + kLinePadding});
        list->addItem(item);
    }
    return list;
}

}  // namespace frontdesk
