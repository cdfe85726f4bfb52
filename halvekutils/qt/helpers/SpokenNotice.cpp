// SPDX-License-Identifier: MIT
#include <halvekutils/qt/helpers/SpokenNotice.h>
#include <halvekutils/qt/helpers/SpokenPart.h>

#include <QApplication>

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
    for (SpokenNoticePart* const part : said_) Forget(part);
}

void SpokenNotice::Say(const QString& text) {
    if (!QAccessible::isActive() || !about_.isVisible()) return;
    constexpr qsizetype kKept = 8;
    if (said_.isEmpty() || said_.constLast()->text(QAccessible::Name) != text) {
        said_ += new SpokenNoticePart(about_, text);
        QAccessible::registerAccessibleInterface(said_.constLast());
    }
    if (said_.size() > kKept) Forget(said_.takeFirst());
    Send(*said_.constLast(), QAccessible::ObjectShow);
}

}  // namespace halvek
