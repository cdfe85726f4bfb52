// SPDX-License-Identifier: MIT
#include <halvekutils/qt/helpers/SpokenNotice.h>
#include <halvekutils/qt/helpers/SpokenPart.h>

#include <QApplication>

#include <utility>

namespace halvek {

class SpokenNoticePart : public SpokenPart {
  public:
    SpokenNoticePart(QWidget& about, const QString& text) : SpokenPart(about), text_(text) {}

    // Not the window, which screen readers would name before each notice.
    QAccessibleInterface* parent() const override {
        return QAccessible::queryAccessibleInterface(qApp);
    }
    QAccessible::Role role() const override { return QAccessible::Notification; }
    QAccessible::State state() const override { return {}; }
    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Name ? text_ : QString();
    }

  private:
    QString text_;
};

SpokenNotice::SpokenNotice(QWidget& about) : QObject(&about), about_(about) {}

SpokenNotice::~SpokenNotice() {
    Forget(last_);
}

void SpokenNotice::Say(const QString& text) {
    if (!QAccessible::isActive() || !about_.isVisible()) return;
    // A reader that is late finds the same text again.
    if (last_ == nullptr || last_->text(QAccessible::Name) != text) {
        Forget(std::exchange(last_, new SpokenNoticePart(about_, text)));
        QAccessible::registerAccessibleInterface(last_);
    }
    Send(*last_, QAccessible::ObjectShow);
}

}  // namespace halvek
