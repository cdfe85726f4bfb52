// SPDX-License-Identifier: MIT
#include <halvekutils/qt/QtText.h>
#include <halvekutils/qt/forms/TypedCodesEdit.h>
#include <halvekutils/qt/helpers/EventGuard.h>
#include <halvekutils/qt/helpers/FieldOutline.h>
#include <halvekutils/qt/helpers/Keys.h>
#include <halvekutils/selection/PastedCodes.h>

#include <QApplication>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QToolTip>

#include <algorithm>
#include <limits>
#include <utility>

namespace halvek {

namespace {

constexpr qsizetype kMaxEdited = 200'000;
constexpr std::size_t kMaxShown = 1000;

}  // namespace

QString TypedCodesEdit::Hint() {
    return tr(
        "Type codes and a comma after each.\n"
        "Tab goes to the list; there, letters or Ctrl+F find a name and Space ticks it.");
}

TypedCodesEdit::TypedCodesEdit(SelectGrid& rules, QWidget* parent)
    : QLineEdit(parent), rules_(rules) {
    setObjectName(QLatin1String("txtSelect"));
    setAccessibleName(tr("Selected codes"));
    new FieldOutline(*this);
    // A line edit shapes its whole text at each change and again when it is painted.
    QFont letters;
    letters.setStyleStrategy(QFont::PreferNoShaping);
    setFont(letters);
    setPlaceholderText(tr("Codes, separated by commas"));
    // Qt's own limit takes time in the square of what is pasted.
    setMaxLength(std::numeric_limits<int>::max());
    connect(this, &QLineEdit::textChanged, this, &TypedCodesEdit::TextEdited);
}

void TypedCodesEdit::TextEdited() {
    if (mirroring_) return;
    GuardEvent(u"frmSelectGrid.txtSelect_Change", [this] {
        if (text().size() > kMaxEdited) return RefuseInserted();
        TidyInserted(ToQString(rules_.Box().text));
        const int caret = hasSelectedText() ? selectionStart() : cursorPosition();
        rules_.EditBox(text(), caret, selectionLength());
    });
}

/// A part of what is pasted could end in a part of a code, which may be another one.
void TypedCodesEdit::RefuseInserted() {
    const QScopedValueRollback mirroring(mirroring_, true);
    setText(ToQString(rules_.Box().text));
    SelectAsRulesDo();
    QApplication::beep();
    QToolTip::showText(mapToGlobal(rect().bottomLeft()), tr("Too many codes to be pasted here"),
                       this);
}

/// Codes come in several characters at once when they are pasted or dropped.
void TypedCodesEdit::TidyInserted(const QString& before) {
    const QString now = text();
    const qsizetype shorter = std::min(before.size(), now.size());
    const auto ends = std::mismatch(now.crbegin(), now.crbegin() + shorter, before.crbegin());
    const qsizetype after = ends.first - now.crbegin();
    const auto starts =
        std::mismatch(now.cbegin(), now.cbegin() + (shorter - after), before.cbegin());
    const qsizetype start = starts.first - now.cbegin();
    const QString inserted = now.mid(start, now.size() - after - start);
    const QString codes = ToQString(PastedCodes(inserted));
    if (inserted.size() < 2 || codes == inserted) return;
    const QScopedValueRollback mirroring(mirroring_, true);
    setSelection(static_cast<int>(start), static_cast<int>(inserted.size()));
    insert(codes);
}

void TypedCodesEdit::Refresh() {
    const TypedCodesBox& box = rules_.Box();
    setEnabled(box.enabled);
    if (shownVersion_ == rules_.BoxVersion()) return;
    const QScopedValueRollback mirroring(mirroring_, true);
    // Every change of a line edit costs time in proportion to its text.
    const bool tooLong = box.text.size() > static_cast<std::size_t>(kMaxEdited);
    setReadOnly(tooLong);
    setToolTip(tooLong ? tr("Too many codes to be edited here") : Hint());
    const QString wanted =
        tooLong ? ToQString(std::u16string_view(box.text).substr(0, kMaxShown)) + QChar(0x2026)
                : ToQString(box.text);
    if (text() != wanted) setText(wanted);
    SelectAsRulesDo();
}

void TypedCodesEdit::SelectAsRulesDo() {
    const TypedCodesBox& box = rules_.Box();
    setCursorPosition(box.caret);
    if (box.selected > 0) setSelection(box.caret, box.selected);
    shownVersion_ = rules_.BoxVersion();
}

bool TypedCodesEdit::MayBeLeft() {
    rules_.CapitalizeCodes();
    return rules_.ValidateBox();
}

void TypedCodesEdit::Return() {
    setFocus(Qt::OtherFocusReason);
    SelectAsRulesDo();
}

void TypedCodesEdit::focusInEvent(QFocusEvent* event) {
    const Qt::FocusReason reason = event->reason();
    enteredByClick_ = reason == Qt::MouseFocusReason;
    // Qt selects the whole text when a key moves the focus here; the next letter would replace it.
    QFocusEvent quiet(event->type(), enteredByClick_ ? reason : Qt::OtherFocusReason);
    QLineEdit::focusInEvent(&quiet);
    if (enteredByClick_) return;
    const bool restored =
        wasFocused_ && (reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason ||
                        reason == Qt::OtherFocusReason);
    EnterBox(restored ? SelectGrid::BoxFocus::Restored : SelectGrid::BoxFocus::Entered);
}

void TypedCodesEdit::EnterBox(SelectGrid::BoxFocus how) {
    wasFocused_ = true;
    GuardEvent(u"frmSelectGrid.txtSelect_GotFocus", [&] { rules_.FocusBox(how); });
}

void TypedCodesEdit::mousePressEvent(QMouseEvent* event) {
    QLineEdit::mousePressEvent(event);
    // Only after the click has set the caret: a refusal selects the wrong code.
    if (std::exchange(enteredByClick_, false)) EnterBox(SelectGrid::BoxFocus::Entered);
}

void TypedCodesEdit::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    commaIsDown_ = false;
}

// Qt would write into a box that is too long to be edited.
void TypedCodesEdit::inputMethodEvent(QInputMethodEvent* event) {
    isReadOnly() ? event->ignore() : QLineEdit::inputMethodEvent(event);
}

void TypedCodesEdit::keyPressEvent(QKeyEvent* event) {
    if (IsEnter(*event)) {
        GuardEvent(u"frmSelectGrid.txtSelect_KeyDown", [this] { emit Accepted(); });
        return;
    }
    if (event->key() == Qt::Key_Down && event->modifiers() == Qt::NoModifier) {
        GuardEvent(u"frmSelectGrid.txtSelect_KeyDown", [this] { emit WentDown(); });
        return;
    }
    if (!event->isAutoRepeat() && !event->text().isEmpty() && !EndComma()) return;
    if (event->text() == QLatin1String(",")) commaIsDown_ = true;
    QLineEdit::keyPressEvent(event);
}

/// A fast typist presses the next key before releasing the comma, which then counts as released.
/// False when the box's text is refused.
bool TypedCodesEdit::EndComma() {
    commaEnded_ = std::exchange(commaIsDown_, false);
    bool accepted = true;
    if (commaEnded_) {
        GuardEvent(u"frmSelectGrid.txtSelect_KeyUp", [&] { accepted = MayBeLeft(); });
    }
    return accepted;
}

void TypedCodesEdit::keyReleaseEvent(QKeyEvent* event) {
    QLineEdit::keyReleaseEvent(event);
    if (event->key() != Qt::Key_Comma || event->isAutoRepeat()) return;
    commaIsDown_ = false;
    if (std::exchange(commaEnded_, false)) return;
    GuardEvent(u"frmSelectGrid.txtSelect_KeyUp", [this] {
        rules_.CapitalizeCodes();
        rules_.ReleaseComma();
    });
}

}  // namespace halvek
