// SPDX-License-Identifier: MIT
#include <halvekutils/qt/helpers/EventGuard.h>
#include <halvekutils/qt/helpers/FindBar.h>

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

#include <utility>

namespace halvek {

namespace {

constexpr int kMaxWordLength = 200;

template <class Press>
QToolButton* MakeButton(const char* name, const QString& caption, const QString& toolTip,
                        const Press& press) {
    auto* const button = new QToolButton;
    button->setObjectName(QLatin1String(name));
    button->setText(caption);
    button->setToolTip(toolTip);
    button->setAccessibleName(QString(caption).remove(QLatin1Char('&')));
    button->setFocusPolicy(Qt::StrongFocus);
    QObject::connect(button, &QToolButton::clicked, button,
                     [press] { GuardEvent(u"FindBar.Click", press); });
    return button;
}

}  // namespace

FindBar::FindBar(Searched text, const QString& prompt, QWidget* parent)
    : QFrame(parent), text_(std::move(text)), txtFind_(new QLineEdit), lblFind_(new QLabel) {
    setObjectName(QLatin1String("FindBar"));
    txtFind_->setObjectName(QLatin1String("txtFind"));
    txtFind_->setAccessibleName(prompt);
    txtFind_->setPlaceholderText(prompt);
    txtFind_->setMaxLength(kMaxWordLength);
    txtFind_->setClearButtonEnabled(true);
    lblFind_->setObjectName(QLatin1String("lblFind"));
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(4, 4, 4, 4);
    row->addWidget(txtFind_, 1);
    row->addWidget(MakeButton("cmdFindPrevious", tr("Pre&vious"), tr("Previous (Shift+F3)"),
                              [this] { Find(true); }));
    row->addWidget(
        MakeButton("cmdFindNext", tr("Ne&xt"), tr("Next (F3)"), [this] { Find(false); }));
    row->addWidget(lblFind_);
    row->addStretch(1);
    row->addWidget(
        MakeButton("cmdFindClose", tr("Close"), tr("Close (Escape)"), [this] { Close(); }));
    connect(txtFind_, &QLineEdit::textEdited, this,
            [this] { GuardEvent(u"FindBar.txtFind_Change", [this] { FindTyped(); }); });
    connect(txtFind_, &QLineEdit::returnPressed, this,
            [this] { GuardEvent(u"FindBar.txtFind_Enter", [this] { Find(false); }); });
    hide();
}

FindBar::~FindBar() = default;

void FindBar::Open() {
    ShowOutcome(true);
    show();
    txtFind_->setFocus(Qt::ShortcutFocusReason);
    txtFind_->selectAll();
}

void FindBar::Close() {
    hide();
    text_.widget->setFocus(Qt::OtherFocusReason);
}

/// While the word grows the place that was found stays where it is.
void FindBar::FindTyped() {
    QTextCursor cursor = text_.cursor();
    cursor.setPosition(cursor.selectionStart());
    text_.setCursor(cursor);
    if (txtFind_->text().isEmpty()) {
        ShowOutcome(true);
    } else {
        Find(false);
    }
}

void FindBar::Find(bool backwards) {
    if (txtFind_->text().isEmpty()) {
        Open();
        return;
    }
    const QTextCursor before = text_.cursor();
    QTextCursor otherEnd = before;
    otherEnd.movePosition(backwards ? QTextCursor::End : QTextCursor::Start);
    const bool found = FindFrom(before, backwards) || FindFrom(otherEnd, backwards);
    if (!found) text_.setCursor(before);
    ShowOutcome(found);
}

bool FindBar::FindFrom(const QTextCursor& cursor, bool backwards) {
    text_.setCursor(cursor);
    const auto direction = backwards ? QTextDocument::FindBackward : QTextDocument::FindFlags();
    return text_.find(txtFind_->text(), direction);
}

void FindBar::ShowOutcome(bool found) {
    lblFind_->setText(found ? QString() : tr("Not found"));
    txtFind_->setAccessibleDescription(lblFind_->text());
}

void FindBar::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        Close();
    } else {
        QFrame::keyPressEvent(event);
    }
}

}  // namespace halvek
