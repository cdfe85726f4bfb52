// SPDX-License-Identifier: MIT
#include <halvekutils/qt/helpers/StatusLabel.h>

#include <QAccessible>

namespace halvek {

StatusLabel::StatusLabel(const char* name, QWidget* parent) : QLabel(parent) {
    setObjectName(QLatin1String(name));
    setTextFormat(Qt::PlainText);
}

void StatusLabel::Tell(const QString& text) {
    setText(text);
    if (text.isEmpty()) return;
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

}  // namespace halvek
