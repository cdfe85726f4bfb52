#include <halvekutils/qt/forms/EventGuard.h>
#include <halvekutils/qt/forms/HelpFindBar.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QTextCursor>
#include <QTextEdit>
#include <QToolButton>

namespace halvek {

namespace {

constexpr int kLongestWord = 200;

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
                     [press] { GuardEvent(u"HelpFindBar.Click", press); });
    return button;
}

}  // namespace

HelpFindBar::HelpFindBar(QTextEdit& text, QWidget* parent)
    : QFrame(parent), text_(text), txtFind_(new QLineEdit), lblOutcome_(new QLabel) {
    setObjectName(QLatin1String("HelpFindBar"));
    txtFind_->setObjectName(QLatin1String("txtFind"));
    txtFind_->setAccessibleName(tr("Find in this page"));
    txtFind_->setPlaceholderText(tr("Find in this page"));
    txtFind_->setMaxLength(kLongestWord);
    txtFind_->setClearButtonEnabled(true);
    lblOutcome_->setObjectName(QLatin1String("lblOutcome"));
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(4, 4, 4, 4);
    row->addWidget(txtFind_, 1);
    row->addWidget(MakeButton("cmdFindPrevious", tr("Pre&vious"), tr("Previous (Shift+F3)"),
                              [this] { Find(true); }));
    row->addWidget(
        MakeButton("cmdFindNext", tr("Ne&xt"), tr("Next (F3)"), [this] { Find(false); }));
    row->addWidget(lblOutcome_);
    row->addStretch(1);
    row->addWidget(
        MakeButton("cmdFindClose", tr("Close"), tr("Close (Escape)"), [this] { Close(); }));
    connect(txtFind_, &QLineEdit::textEdited, this,
            [this] { GuardEvent(u"HelpFindBar.txtFind_Change", [this] { FindTyped(); }); });
    connect(txtFind_, &QLineEdit::returnPressed, this,
            [this] { GuardEvent(u"HelpFindBar.txtFind_Enter", [this] { Find(false); }); });
    hide();
}

HelpFindBar::~HelpFindBar() = default;

void HelpFindBar::Open() {
    ShowOutcome(true);
    show();
    txtFind_->setFocus(Qt::ShortcutFocusReason);
    txtFind_->selectAll();
}

void HelpFindBar::Close() {
    hide();
    text_.setFocus(Qt::OtherFocusReason);
}

/// While the word grows the place that was found stays where it is.
void HelpFindBar::FindTyped() {
    QTextCursor cursor = text_.textCursor();
    cursor.setPosition(cursor.selectionStart());
    text_.setTextCursor(cursor);
    if (txtFind_->text().isEmpty()) {
        ShowOutcome(true);
    } else {
        Find(false);
    }
}

void HelpFindBar::Find(bool backwards) {
    const QString word = txtFind_->text();
    if (word.isEmpty()) {
        Open();
        return;
    }
    const QTextDocument::FindFlags flags =
        backwards ? QTextDocument::FindBackward : QTextDocument::FindFlags();
    const QTextCursor before = text_.textCursor();
    bool found = text_.find(word, flags);
    if (!found) {
        text_.moveCursor(backwards ? QTextCursor::End : QTextCursor::Start);
        found = text_.find(word, flags);
    }
    if (!found) text_.setTextCursor(before);
    ShowOutcome(found);
}

void HelpFindBar::ShowOutcome(bool found) {
    lblOutcome_->setText(found ? QString() : tr("Not found"));
    txtFind_->setAccessibleDescription(lblOutcome_->text());
}

}  // namespace halvek
