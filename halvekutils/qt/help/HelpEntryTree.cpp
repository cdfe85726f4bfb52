// SPDX-License-Identifier: MIT
#include <halvekutils/qt/QtText.h>
#include <halvekutils/qt/help/HelpEntryTree.h>
#include <halvekutils/qt/helpers/EventGuard.h>
#include <halvekutils/qt/helpers/FieldOutline.h>

#include <QTreeWidgetItemIterator>

namespace halvek {

namespace {

constexpr int kEntryRole = Qt::UserRole;

QString KeyOf(const HelpTopic& topic) {
    return ToQString(topic.path).toLower();
}

}  // namespace

HelpEntryTree::HelpEntryTree(const char* name, const QString& caption) {
    setObjectName(QLatin1String(name));
    setAccessibleName(caption);
    setHeaderHidden(true);
    setUniformRowHeights(true);
    new FieldOutline(*this);
    const auto choose = [this](QTreeWidgetItem* item) {
        GuardEvent(u"HelpViewer.Entry_Click", [&] { Choose(item); });
    };
    connect(this, &QTreeWidget::itemClicked, this, choose);
    connect(this, &QTreeWidget::itemActivated, this, choose);
}

void HelpEntryTree::Fill(const std::vector<HelpEntry>& entries) {
    setUpdatesEnabled(false);
    items_.clear();
    clear();
    entries_ = entries;
    std::vector<QTreeWidgetItem*> path;
    QList<QTreeWidgetItem*> outermost;
    for (std::size_t number = 0; number < entries_.size(); ++number) {
        const HelpEntry& entry = entries_[number];
        QTreeWidgetItem* const item = Add(path, entry);
        item->setData(0, kEntryRole, static_cast<int>(number));
        if (path.size() == 1) outermost.append(item);
        if (!entry.topic.path.empty()) items_[KeyOf(entry.topic)].push_back(item);
    }
    addTopLevelItems(outermost);
    expandToDepth(0);
    setUpdatesEnabled(true);
}

/// @param path  the entries that are open above it; gets the new one
QTreeWidgetItem* HelpEntryTree::Add(std::vector<QTreeWidgetItem*>& path, const HelpEntry& entry) {
    path.resize(std::min(path.size(), static_cast<std::size_t>(entry.depth)));
    auto* const item = path.empty() ? new QTreeWidgetItem : new QTreeWidgetItem(path.back());
    const QString title = ToQString(entry.title);
    item->setText(0, entry.seeAlso.empty() ? title : tr("See also: %1").arg(title));
    item->setToolTip(0, ToToolTip(entry.title));
    path.push_back(item);
    return item;
}

void HelpEntryTree::Choose(QTreeWidgetItem* item) {
    const HelpEntry& entry = entries_[static_cast<std::size_t>(item->data(0, kEntryRole).toInt())];
    if (!entry.seeAlso.empty()) {
        GoToStart(ToQString(entry.seeAlso));
    } else if (!entry.topic.path.empty() || !entry.outside.empty()) {
        emit Chosen(entry);
    }
}

void HelpEntryTree::Mark(const HelpTopic& shown) {
    const auto found = items_.constFind(KeyOf(shown));
    if (found == items_.constEnd()) {
        setCurrentItem(nullptr);
        return;
    }
    QTreeWidgetItem* best = found->front();
    for (QTreeWidgetItem* const item : *found) {
        const auto number = static_cast<std::size_t>(item->data(0, kEntryRole).toInt());
        if (entries_[number].topic.anchor != shown.anchor) continue;
        best = item;
        break;
    }
    setCurrentItem(best);
}

bool HelpEntryTree::GoToStart(const QString& title) {
    for (QTreeWidgetItemIterator it(this); *it != nullptr; ++it) {
        if (!(*it)->text(0).startsWith(title, Qt::CaseInsensitive)) continue;
        setCurrentItem(*it);
        scrollToItem(*it);
        return true;
    }
    return false;
}

}  // namespace halvek
