// SPDX-License-Identifier: MIT
#pragma once

#include <QHeaderView>
#include <QString>
#include <QStringList>
#include <QTableView>
#include <QTableWidget>

#include <cstddef>

namespace frontdesk {

/// A column of a table of the library's objects: its heading, its width in pixels and the text of a
/// row.
template <class T>
struct Column {
    const char* heading;
    int width;
    QString (*text)(const T& item);
};

/// How a table shows a flag.
inline QString Tick(bool flag) {
    return flag ? "Yes" : QString();
}

/// Rows as in a list: selected as a whole, in alternating colours; the Tab key leaves the table.
void StyleAsList(QTableView& table);

/// Adds a row of read-only texts; returns its number.
int AddTableRow(QTableWidget& table, const QStringList& texts);

template <class T, std::size_t n>
QTableWidget* MakeTable(const QString& name, const Column<T> (&columns)[n]) {
    auto* table = new QTableWidget(0, static_cast<int>(n));
    StyleAsList(*table);
    table->setAccessibleName(name);
    for (std::size_t i = 0; i < n; ++i) {
        const int section = static_cast<int>(i);
        auto* heading = new QTableWidgetItem(columns[i].heading);
        heading->setTextAlignment(Qt::AlignLeft | Qt::AlignVCenter);
        table->setHorizontalHeaderItem(section, heading);
        table->setColumnWidth(section, columns[i].width);
    }
    return table;
}

/// Shows the items of a collection, one in a row; null shows none.
template <class T, std::size_t n, class Collection>
void FillTable(QTableWidget& table, const Column<T> (&columns)[n], const Collection& items) {
    table.setRowCount(0);
    if (items == nullptr) return;
    for (const auto& item : items) {
        QStringList texts;
        for (const Column<T>& column : columns) texts << column.text(*item);
        AddTableRow(table, texts);
    }
}

}  // namespace frontdesk
