// SPDX-License-Identifier: MIT
#pragma once

#include <QHeaderView>
#include <QString>
#include <QStringList>
#include <QTableWidget>

namespace frontdesk {

/// Headings without bevels, as quiet as the rest of a card.
inline void FlattenHeaders(QTableView& table) {
    table.setStyleSheet(
        "QHeaderView, QTableCornerButton::section { background: transparent; border: none; }"
        "QHeaderView::section { background: transparent; border: none; padding: 3px 8px; }"
        "QTableView::item { padding: 0 6px; }"
        "QHeaderView::section:horizontal { border-bottom: 1px solid palette(midlight); }");
}

/// A table of read-only rows, chosen as a whole; the Tab key leaves it.
inline QTableWidget* MakeList(const QString& name, const QStringList& headings) {
    auto* list = new QTableWidget(0, static_cast<int>(headings.size()));
    list->setAccessibleName(name);
    list->setHorizontalHeaderLabels(headings);
    list->setSelectionBehavior(QAbstractItemView::SelectRows);
    list->setSelectionMode(QAbstractItemView::SingleSelection);
    list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    list->setFrameShape(QFrame::NoFrame);
    list->setShowGrid(false);
    list->setWordWrap(false);
    list->setTabKeyNavigation(false);
    list->verticalHeader()->hide();
    list->verticalHeader()->setDefaultSectionSize(list->fontMetrics().height() + 8);
    list->horizontalHeader()->setHighlightSections(false);
    list->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    list->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    list->horizontalHeader()->setStretchLastSection(true);
    FlattenHeaders(*list);
    list->setMinimumHeight(list->fontMetrics().height() * 5);
    return list;
}

/// Adds a row; texts that begin with an amount stand at the right.
inline void AddRow(QTableWidget& list, const QStringList& texts) {
    const int row = list.rowCount();
    list.insertRow(row);
    for (qsizetype i = 0; i < texts.size(); ++i) {
        const int column = static_cast<int>(i);
        auto* cell = new QTableWidgetItem(texts[i]);
        list.setItem(row, column, cell);
        if (!texts[i].contains('$')) continue;
        constexpr Qt::Alignment kRight = Qt::AlignRight | Qt::AlignVCenter;
        cell->setTextAlignment(kRight);
        list.horizontalHeaderItem(column)->setTextAlignment(kRight);
    }
}

}  // namespace frontdesk
