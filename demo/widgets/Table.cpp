// SPDX-License-Identifier: MIT
#include "widgets/Table.h"

namespace frontdesk {

namespace {

constexpr int kRowPadding = 8;

}  // namespace

void StyleAsList(QTableView& table) {
    table.setSelectionBehavior(QAbstractItemView::SelectRows);
    table.setSelectionMode(QAbstractItemView::SingleSelection);
    table.setAlternatingRowColors(true);
    table.setShowGrid(false);
    table.setWordWrap(false);
    table.setTabKeyNavigation(false);
    table.verticalHeader()->hide();
    table.verticalHeader()->setDefaultSectionSize(table.fontMetrics().height() + kRowPadding);
    table.horizontalHeader()->setHighlightSections(false);
    table.horizontalHeader()->setStretchLastSection(true);
}

int AddTableRow(QTableWidget& table, const QStringList& texts) {
    const int row = table.rowCount();
    table.insertRow(row);
    int column = 0;
    for (const QString& text : texts) {
        auto* cell = new QTableWidgetItem(text);
        cell->setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled);
        table.setItem(row, column++, cell);
    }
    return row;
}

}  // namespace frontdesk
