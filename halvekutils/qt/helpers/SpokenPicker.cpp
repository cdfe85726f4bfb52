// SPDX-License-Identifier: MIT
#include <halvekutils/qt/helpers/SpokenPart.h>
#include <halvekutils/qt/helpers/SpokenPicker.h>

#include <QAbstractItemView>
#include <QAccessibleWidget>
#include <QEvent>
#include <QMetaObject>

#include <utility>

namespace halvek {

/// The one item of the list.
class SpokenItem : public SpokenPart {
  public:
    SpokenItem(const SpokenPicker& list, SpokenEntry entry)
        : SpokenPart(list.Picker()), list_(list), entry_(std::move(entry)) {}

    const SpokenEntry& Entry() const { return entry_; }

    /// Takes over what may change while the item stays the same.
    void Update(const SpokenEntry& entry) {
        const bool isTicked = entry.checked != entry_.checked;
        entry_ = entry;
        if (!isTicked) return;
        QAccessible::State changed;
        changed.checked = true;
        QAccessibleStateChangeEvent event(this, changed);
        QAccessible::updateAccessibility(&event);
    }

    QAccessible::Role role() const override {
        return entry_.checked ? QAccessible::CheckBox : QAccessible::ListItem;
    }
    QString text(QAccessible::Text kind) const override {
        if (kind == QAccessible::Name) return entry_.name;
        return kind == QAccessible::Description ? entry_.remark : QString();
    }
    QRect rect() const override {
        if (!isValid()) return {};
        const QAbstractItemView& picker = list_.Picker();
        const QRect place = picker.visualRect(picker.currentIndex());
        return place.translated(picker.viewport()->mapToGlobal(QPoint()));
    }
    QAccessible::State state() const override {
        QAccessible::State state;
        if (!isValid()) return state;
        state.focusable = true;
        state.focused = list_.Current() == this && list_.Picker().hasFocus();
        state.selectable = !entry_.checked;
        state.selected = !entry_.checked && list_.Current() == this;
        state.checkable = entry_.checked.has_value();
        state.checked = entry_.checked.value_or(false);
        state.invisible = !list_.Picker().isVisible();
        return state;
    }

  private:
    const SpokenPicker& list_;
    SpokenEntry entry_;
};

namespace {

/// The list, which any index leads to the current entry: Qt counts the cells of a table.
class SpokenList : public QAccessibleWidget {
  public:
    explicit SpokenList(const SpokenPicker& list)
        : QAccessibleWidget(&list.Picker(), QAccessible::List), list_(list) {}

    int childCount() const override { return list_.Current() == nullptr ? 0 : 1; }
    QAccessibleInterface* child(int) const override { return list_.Current(); }
    int indexOfChild(const QAccessibleInterface* child) const override {
        return child != nullptr && child == list_.Current() ? 0 : -1;
    }
    QAccessibleInterface* childAt(int x, int y) const override {
        SpokenItem* const item = list_.Current();
        return item != nullptr && item->rect().contains(x, y) ? item : nullptr;
    }
    QAccessibleInterface* focusChild() const override {
        return list_.Picker().hasFocus() ? list_.Current() : nullptr;
    }

  private:
    const SpokenPicker& list_;
};

QAccessibleInterface* MakeList(const QString&, QObject* object) {
    if (object == nullptr || !object->isWidgetType()) return nullptr;
    for (QObject* const child : object->children()) {
        if (const auto* const list = qobject_cast<SpokenPicker*>(child)) {
            return new SpokenList(*list);
        }
    }
    return nullptr;
}

bool IsSame(const SpokenEntry& one, const SpokenEntry& other) {
    return one.number == other.number && one.name == other.name && one.remark == other.remark;
}

}  // namespace

SpokenPicker::SpokenPicker(QAbstractItemView& picker) : QObject(&picker), picker_(picker) {
    QAccessible::installFactory(MakeList);
    // A screen reader may have met the control that the picker was made from.
    auto* const met = QAccessible::queryAccessibleInterface(&picker);
    if (dynamic_cast<SpokenList*>(met) == nullptr) Forget(met);
    picker.installEventFilter(this);
}

SpokenPicker::~SpokenPicker() {
    Forget(previous_);
    Forget(current_);
}

void SpokenPicker::Tell(const SpokenEntry& entry) {
    if (current_ != nullptr && IsSame(current_->Entry(), entry)) {
        current_->Update(entry);
    } else if (!entry.name.isEmpty()) {
        Replace(new SpokenItem(*this, entry));
    } else if (current_ != nullptr) {
        Replace(nullptr);
    }
}

void SpokenPicker::Replace(SpokenItem* item) {
    Forget(std::exchange(previous_, current_));
    current_ = item;
    if (item == nullptr) return;
    QAccessible::registerAccessibleInterface(item);
    Send(*item, QAccessible::ObjectCreated);
    Focus();
}

void SpokenPicker::Focus() {
    if (current_ != nullptr && picker_.hasFocus()) Send(*current_, QAccessible::Focus);
}

// Qt tells screen readers of the list itself, after this event.
bool SpokenPicker::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusIn) {
        QMetaObject::invokeMethod(this, &SpokenPicker::Focus, Qt::QueuedConnection);
    }
    return QObject::eventFilter(watched, event);
}

}  // namespace halvek
