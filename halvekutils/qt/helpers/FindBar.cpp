// SPDX-License-Identifier: MIT
#include <halvekutils/qt/helpers/Design.h>
#include <halvekutils/qt/helpers/EventGuard.h>
#include <halvekutils/qt/helpers/FieldOutline.h>
#include <halvekutils/qt/helpers/FindBar.h>
#include <halvekutils/qt/helpers/StatusLabel.h>

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>

#include <utility>

namespace halvek {

namespace {

constexpr int kMaxWordLength = 200;

template <class Press>
QPushButton* MakeButton(const char* name, const QString& caption, const QString& toolTip,
                        const Press& press) {
    QPushButton* const button = design::NewButton(name, caption);
    button->setToolTip(toolTip);
    QObject::connect(button, &QPushButton::clicked, button,
                     [press] { GuardEvent(u"FindBar.Click", press); });
    return button;
}

}  // namespace

FindBar::FindBar(Searched text, const QString& prompt, QWidget* parent)
    : QWidget(parent),
      text_(std::move(text)),
      txtFind_(new QLineEdit),
      lblFind_(new StatusLabel("lblFind")) {
    setObjectName(QLatin1String("FindBar"));
    txtFind_->setObjectName(QLatin1String("txtFind"));
    txtFind_->setAccessibleName(prompt);
    new FieldOutline(*txtFind_);
    txtFind_->setPlaceholderText(prompt);
    txtFind_->setMaxLength(kMaxWordLength);
    txtFind_->setClearButtonEnabled(true);
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(design::Gap());
    row->addWidget(txtFind_, 1);
    QPushButton* const previous = MakeButton("cmdFindPrevious", tr("Pre&vious"),
                                             tr("Previous (Shift+F3)"), [this] { Find(true); });
    QPushButton* const next =
        MakeButton("cmdFindNext", tr("Ne&xt"), tr("Next (F3)"), [this] { Find(false); });
    QPushButton* const close =
        MakeButton("cmdFindClose", tr("Close"), tr("Close (Escape)"), [this] { Close(); });
    design::MakeAlike({previous, next, close});
    row->addWidget(previous);
    row->addWidget(next);
    row->addWidget(lblFind_);
    row->addWidget(close);
    // The box is not to jump while a word is typed.
    lblFind_->setMinimumWidth(lblFind_->fontMetrics().horizontalAdvance(NotFound()));
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

/// Searches from the start of the place found, so it stays found while the word grows.
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

QString FindBar::NotFound() {
    return tr("Not found");
}

bool FindBar::FindFrom(const QTextCursor& cursor, bool backwards) {
    text_.setCursor(cursor);
    const auto direction = backwards ? QTextDocument::FindBackward : QTextDocument::FindFlags();
    return text_.find(txtFind_->text(), direction);
}

void FindBar::ShowOutcome(bool found) {
    lblFind_->Tell(found ? QString() : NotFound());
    txtFind_->setAccessibleDescription(lblFind_->text());
}

void FindBar::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        Close();
    } else {
        QWidget::keyPressEvent(event);
    }
}

}  // namespace halvek
