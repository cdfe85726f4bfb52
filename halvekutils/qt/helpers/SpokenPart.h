// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessible>
#include <QPointer>
#include <QWidget>

namespace halvek {

/// Something inside a control that screen readers meet although it is no widget itself. It may be
/// asked while the control is being destroyed.
class SpokenPart : public QAccessibleInterface {
  public:
    explicit SpokenPart(QWidget& whole) : whole_(&whole) {}

    bool isValid() const override { return !whole_.isNull(); }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return whole_ ? whole_->window()->windowHandle() : nullptr; }
    QAccessibleInterface* parent() const override {
        return whole_ ? QAccessible::queryAccessibleInterface(whole_) : nullptr;
    }
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override {
        return whole_ ? QRect(whole_->mapToGlobal(QPoint()), whole_->size()) : QRect();
    }

  private:
    QPointer<QWidget> whole_;
};

/// Tells screen readers that something has happened to a part.
inline void Send(QAccessibleInterface& part, QAccessible::Event what) {
    QAccessibleEvent event(&part, what);
    QAccessible::updateAccessibility(&event);
}

/// Destroys what screen readers were given; does nothing to null.
inline void Forget(QAccessibleInterface* part) {
    if (part != nullptr) QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(part));
}

}  // namespace halvek
