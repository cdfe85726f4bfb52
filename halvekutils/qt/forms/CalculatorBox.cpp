// SPDX-License-Identifier: MIT
#include <halvekutils/qt/QtText.h>
#include <halvekutils/qt/forms/CalculatorBox.h>
#include <halvekutils/qt/helpers/Design.h>
#include <halvekutils/qt/helpers/EventGuard.h>
#include <halvekutils/qt/helpers/FieldOutline.h>

#include <QFocusEvent>
#include <QFontMetrics>
#include <QMouseEvent>
#include <QSignalBlocker>

#include <utility>

namespace halvek {

namespace {

constexpr double kDisplayFont = 1.8;  // times the desktop's

const char* const kWidestNumber = "-8.88888888888888E+888";

}  // namespace

CalculatorBox::CalculatorBox(Calculator& rules, QWidget* form) : QLineEdit(form), rules_(rules) {
    setObjectName(QLatin1String("txtOutput"));
    setAccessibleName(tr("Display"));
    new FieldOutline(*this);
    setAlignment(Qt::AlignRight);
    setFont(design::ScaledFont(kDisplayFont));
    const QFontMetrics metrics(font());
    const int around = metrics.averageCharWidth() * 2;
    setMinimumWidth(metrics.horizontalAdvance(QLatin1String(kWidestNumber)) + around);
    // Only keys and Ctrl+V, which the rules check, may put text into the box.
    setContextMenuPolicy(Qt::NoContextMenu);
    setAcceptDrops(false);
    setAttribute(Qt::WA_InputMethodEnabled, false);
    connect(this, &QLineEdit::textChanged, this, [this](const QString& text) {
        GuardEvent(u"frmCalculator.txtOutput_Change", [&] { rules_.EditDisplay(text); });
    });
}

void CalculatorBox::Refresh() {
    const QString display = ToQString(rules_.Display());
    if (text() == display) return;
    const QSignalBlocker mirroring(this);
    setText(display);
    if (rules_.NumberDone() && rules_.Focus() == Calculator::kBox) selectAll();
}

void CalculatorBox::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    isEntered_ = event->reason() == Qt::MouseFocusReason;
}

// A click selects the number that the next digit replaces, as Tab does. A click beside the text,
// which is on the right, puts the caret at the end.
void CalculatorBox::mouseReleaseEvent(QMouseEvent* event) {
    QLineEdit::mouseReleaseEvent(event);
    const bool isEntered = std::exchange(isEntered_, false);
    if (hasSelectedText()) return;
    if (isEntered && rules_.NumberDone()) {
        selectAll();
    } else if (IsLeftOfText(event->position().toPoint())) {
        end(false);
    }
}

bool CalculatorBox::IsLeftOfText(const QPoint& place) const {
    const QRect caret = inputMethodQuery(Qt::ImCursorRectangle).toRect();
    return cursorPosition() == 0 && place.x() < caret.left();
}

}  // namespace halvek
