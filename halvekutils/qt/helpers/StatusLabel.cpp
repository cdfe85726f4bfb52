// SPDX-License-Identifier: MIT
#include <halvekutils/qt/helpers/SpokenNotice.h>
#include <halvekutils/qt/helpers/StatusLabel.h>

namespace halvek {

StatusLabel::StatusLabel(const char* name, QWidget* parent)
    : QLabel(parent), notice_(new SpokenNotice(*this)) {
    setObjectName(QLatin1String(name));
    setTextFormat(Qt::PlainText);
}

void StatusLabel::Tell(const QString& text) {
    setText(text);
    if (!text.isEmpty()) notice_->Say(accessibleName().isEmpty() ? text : accessibleName());
}

}  // namespace halvek
