// SPDX-License-Identifier: MIT
#include "widgets/Tables.h"

#include <QHeaderView>

namespace frontdesk {

void Flatten(QTableView& table) {
    table.setFrameShape(QFrame::NoFrame);
    table.setShowGrid(false);
    table.setTabKeyNavigation(false);
    table.setSelectionMode(QAbstractItemView::SingleSelection);
    table.setEditTriggers(QAbstractItemView::NoEditTriggers);
    table.horizontalHeader()->setHighlightSections(false);
    table.horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    table.verticalHeader()->setDefaultSectionSize(table.fontMetrics().height() + 9);
    table.setStyleSheet(
        "QHeaderView, QTableCornerButton::section { background: transparent; border: none; }"
        "QHeaderView::section { background: transparent; border: none; padding: 3px 8px; }"
        "QTableView::item { padding: 0 6px; }"
        "QHeaderView::section:horizontal { border-bottom: 1px solid palette(midlight); }");
}

QTableWidget* MakeList(const QString& name, const QStringList& headings) {
    auto* list = new QTableWidget(0, static_cast<int>(headings.size()));
    Flatten(*list);
    list->setAccessibleName(name);
    list->setHorizontalHeaderLabels(headings);
    list->setSelectionBehavior(QAbstractItemView::SelectRows);
    list->setWordWrap(false);
    list->verticalHeader()->hide();
    list->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    list->horizontalHeader()->setStretchLastSection(true);
    list->setMinimumHeight(list->fontMetrics().height() * 5);
    return list;
}

void AddRow(QTableWidget& list, const QStringList& texts) {
    const int row = list.rowCount();
    list.insertRow(row);
    for (int column = 0; column < texts.size(); ++column) {
        auto* cell = new QTableWidgetItem(texts[column]);
        list.setItem(row, column, cell);
        if (!texts[column].contains('$')) continue;
        constexpr Qt::Alignment kRight = Qt::AlignRight | Qt::AlignVCenter;
        cell->setTextAlignment(kRight);
        list.horizontalHeaderItem(column)->setTextAlignment(kRight);
    }
}

}  // namespace frontdesk
