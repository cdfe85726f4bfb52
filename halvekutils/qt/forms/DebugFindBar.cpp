#include <halvekutils/qt/forms/DebugFindBar.h>
#include <halvekutils/qt/forms/DebugTextView.h>
#include <halvekutils/qt/forms/EventGuard.h>

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>

namespace halvek {

namespace {

constexpr int kBoxWidth = 240;

}  // namespace

DebugFindBar::DebugFindBar(DebugTextView& text, QWidget* parent)
    : QWidget(parent), text_(text), txtFind_(new QLineEdit), lblFind_(new QLabel) {
    txtFind_->setObjectName(QLatin1String("txtFind"));
    txtFind_->setAccessibleName(tr("Find"));
    txtFind_->setPlaceholderText(tr("Find"));
    txtFind_->setToolTip(tr("F3 goes on, Shift+F3 goes back, Escape closes"));
    txtFind_->setFixedWidth(kBoxWidth);
    lblFind_->setObjectName(QLatin1String("lblFind"));
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins({});
    row->addWidget(txtFind_);
    row->addWidget(lblFind_, 1);
    connect(txtFind_, &QLineEdit::textEdited, this,
            [this] { GuardEvent(u"frmDebug.txtFind_Change", [this] { FindTyped(); }); });
    connect(txtFind_, &QLineEdit::returnPressed, this,
            [this] { GuardEvent(u"frmDebug.txtFind_KeyPress", [this] { FindNext(); }); });
    hide();
}

void DebugFindBar::Open() {
    show();
    txtFind_->setFocus(Qt::ShortcutFocusReason);
    txtFind_->selectAll();
}

// What was found may go on to match while more of it is typed.
void DebugFindBar::FindTyped() {
    QTextCursor cursor = text_.textCursor();
    cursor.setPosition(cursor.selectionStart());
    text_.setTextCursor(cursor);
    FindNext();
}

void DebugFindBar::FindNext() {
    Tell(text_.Find(txtFind_->text()));
}
void DebugFindBar::FindPrevious() {
    Tell(text_.Find(txtFind_->text(), QTextDocument::FindBackward));
}

void DebugFindBar::Tell(bool found) {
    lblFind_->setText(found || txtFind_->text().isEmpty() ? QString() : tr("Not found"));
}

void DebugFindBar::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Escape) return QWidget::keyPressEvent(event);
    hide();
    text_.setFocus(Qt::OtherFocusReason);
}

}  // namespace halvek
