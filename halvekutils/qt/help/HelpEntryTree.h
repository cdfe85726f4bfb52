// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/help/CompiledHelp.h>

#include <QHash>
#include <QString>
#include <QTreeWidget>

#include <vector>

namespace halvek {

/// Shows entries of a help file's contents or index as a tree; a click or Enter chooses one.
class HelpEntryTree : public QTreeWidget {
    Q_OBJECT

  public:
    HelpEntryTree(const char* name, const QString& caption);

    void Fill(const std::vector<HelpEntry>& entries);

    /// Marks the entry of the topic that is shown; prefers the entry of its anchor.
    void Mark(const HelpTopic& shown);

    /// Makes the first entry that starts with these characters the current one, letter case
    /// ignored; false when there is none.
    bool GoToStart(const QString& title);

  signals:
    /// Not for a mere heading.
    void Chosen(const HelpEntry& entry);

  private:
    void Choose(QTreeWidgetItem* item);
    QTreeWidgetItem* Add(std::vector<QTreeWidgetItem*>& path, const HelpEntry& entry);

    std::vector<HelpEntry> entries_;
    QHash<QString, std::vector<QTreeWidgetItem*>> items_;  ///< by path, in small letters
};

}  // namespace halvek
