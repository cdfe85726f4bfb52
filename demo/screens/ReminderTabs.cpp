// SPDX-License-Identifier: MIT
#include "screens/ReminderTabs.h"

#include "widgets/Card.h"

#include <halvekutils/qt/QtText.h>

#include <QListWidget>
#include <QPainter>

#include <cstdint>

namespace frontdesk {

using halvek::StringArray;
using halvek::ToQString;

namespace {

constexpr char kHighlightMark[] = "-";
constexpr char kPatientMark[] = "P-";
constexpr int kLinePadding = 8;

QListWidgetItem* MakeLine(const QString& line) {
    auto* item = new QListWidgetItem(line);
    QFont font;
    if (line.startsWith(kPatientMark, Qt::CaseInsensitive)) {
        item->setText(line.mid(2) + "  (this patient only)");
        font.setItalic(true);
    } else if (line.startsWith(kHighlightMark)) {
        item->setText("!  " + line.mid(1));
        font.setBold(true);
    }
    item->setFont(font);
    return item;
}

}  // namespace

ReminderTabs::ReminderTabs() {
    setObjectName("reminders");
    setAccessibleName("Reminders");
    setDocumentMode(true);
    setMinimumHeight(fontMetrics().height() * 6);
}

QSize ReminderTabs::sizeHint() const {
    constexpr int kLines = 8;
    return {QTabWidget::sizeHint().width(), fontMetrics().height() * kLines};
}

void ReminderTabs::Show(const halvek::ReminderDefinition& reminder) {
    while (count() > 0) {
        QWidget* page = widget(0);
        removeTab(0);
        delete page;
    }
    // The server sends no empty tabs, so that titles and lines have the same numbers.
    const StringArray titles = reminder.Tabs();
    for (std::int16_t number = 1; reminder.HasData() && number <= titles.UBound(); ++number) {
        addTab(MakeTab(reminder.TabData(number)), halvek::ToCaption(titles[number]));
    }
}

QWidget* ReminderTabs::MakeTab(const StringArray& lines) {
    auto* list = new QListWidget;
    list->setFrameShape(QFrame::NoFrame);
    list->setSelectionMode(QAbstractItemView::NoSelection);
    list->setWordWrap(true);
    for (std::int32_t i = 1; i <= lines.UBound(); ++i) {
        QListWidgetItem* item = MakeLine(ToQString(lines[i]));
        item->setSizeHint({0, list->fontMetrics().height() + kLinePadding});
        list->addItem(item);
    }
    return list;
}

void ReminderTabs::paintEvent(QPaintEvent* event) {
    if (count() > 0) return QTabWidget::paintEvent(event);
    QPainter painter(this);
    painter.setPen(QuietColor(palette()));
    painter.drawText(rect(), Qt::AlignLeft | Qt::AlignTop, "No reminders for this account");
}

}  // namespace frontdesk
