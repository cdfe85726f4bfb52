// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>

#include <optional>

class QAbstractItemView;

namespace halvek {

class SpokenItem;

/// An entry of a picker as screen readers say it.
struct SpokenEntry {
    qint64 number = 0;  ///< tells it from the picker's other entries
    QString name;
    std::optional<bool> checked = {};  ///< of an entry with a check box
    QString remark = {};               ///< said last
};

/// Makes a picker speak: a control that draws many entries, one of which its keys act on.
///
/// Screen readers meet a list with one item, the current entry, however many the picker draws. They
/// say an item when it gets the focus, and its check box when that changes; so every other entry is
/// an item of its own.
class SpokenPicker : public QObject {
    Q_OBJECT

  public:
    /// Belongs to the picker.
    explicit SpokenPicker(QAbstractItemView& picker);
    ~SpokenPicker() override;

    /// The current entry has changed, or may have; an empty name for none. Call it before the
    /// picker's own current index changes, which Qt tells screen readers, too.
    void Tell(const SpokenEntry& entry);

    QAbstractItemView& Picker() const { return picker_; }
    /// Null when there is no current entry.
    SpokenItem* Current() const { return current_; }

    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void Replace(SpokenItem* item);
    void Focus();

    QAbstractItemView& picker_;
    // Both belong to the desktop's register of accessible objects. A screen reader that is late may
    // still ask about the previous entry.
    SpokenItem* current_ = nullptr;
    SpokenItem* previous_ = nullptr;
};

}  // namespace halvek
