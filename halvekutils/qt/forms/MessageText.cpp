// SPDX-License-Identifier: MIT
#include <halvekutils/dialogs/MessageBox.h>
#include <halvekutils/qt/QtText.h>
#include <halvekutils/qt/forms/MessageText.h>
#include <halvekutils/qt/helpers/EventGuard.h>
#include <halvekutils/qt/helpers/InputMethodRefusal.h>
#include <halvekutils/qt/helpers/Metrics.h>

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QMenu>
#include <QTextDocumentFragment>
#include <QWheelEvent>

namespace halvek {

MessageText::MessageText(const MessageBox& box, QWidget* parent) : QTextEdit(parent), box_(box) {
    setObjectName(QLatin1String("lblText"));
    setAccessibleName(tr("Message"));
    setReadOnly(true);
    setUndoRedoEnabled(false);
    new InputMethodRefusal(*this);
    setFocusPolicy(Qt::NoFocus);
    setTextInteractionFlags(Qt::TextSelectableByMouse);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    document()->setDocumentMargin(0);
    setFont(ToQFont(box.Font()));
    const QString prompt = ToQString(box.Prompt());
    setWordWrapMode(WrappingOf(prompt).wrapMode());
    setPlainText(prompt);
    const MessageBoxLayout& layout = box.Layout();
    setGeometry(
        ToQRect({layout.label.left, layout.label.top, layout.ViewWidth(), layout.viewHeight}));
}

void MessageText::Copy() const {
    textCursor().hasSelection() ? CopySelection() : CopyMessage();
}

void MessageText::CopySelection() const {
    QGuiApplication::clipboard()->setText(textCursor().selection().toPlainText());
}

void MessageText::CopyMessage() const {
    QGuiApplication::clipboard()->setText(ToQString(box_.CopyText()));
}

void MessageText::contextMenuEvent(QContextMenuEvent* event) {
    GuardEvent(u"frmMessageBox.lblText_Menu", [&] { OpenMenu(event->globalPos()); });
    event->accept();
}

// The menu shows no shortcuts: a text control's keys press buttons here.
void MessageText::OpenMenu(const QPoint& place) {
    auto* const menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const auto add = [&](const QString& caption, void (MessageText::*act)() const) {
        return menu->addAction(caption, this, [this, act] {
            GuardEvent(u"frmMessageBox.lblText_Copy", [&] { (this->*act)(); });
        });
    };
    add(tr("Copy"), &MessageText::CopySelection)->setEnabled(textCursor().hasSelection());
    add(tr("Copy message"), &MessageText::CopyMessage);
    menu->popup(place);
}

void MessageText::wheelEvent(QWheelEvent* event) {
    QCoreApplication::sendEvent(window(), event);
}

}  // namespace halvek
