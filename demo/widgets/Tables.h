// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>
#include <QTableView>
#include <QTableWidget>

namespace frontdesk {

/// Makes a table as quiet as the rest of a card: no frame, no grid, no bevels. The Tab key leaves
/// it.
void Flatten(QTableView& table);

/// A table of read-only rows, chosen as a whole.
QTableWidget* MakeList(const QString& name, const QStringList& headings);

/// Adds a row; texts that begin with an amount stand at the right.
void AddRow(QTableWidget& list, const QStringList& texts);

}  // namespace frontdesk
