// SPDX-License-Identifier: MIT
#include <halvekutils/qt/helpers/Design.h>
#include <halvekutils/qt/helpers/EventGuard.h>
#include <halvekutils/qt/helpers/FieldOutline.h>
#include <halvekutils/qt/helpers/FindBar.h>
#include <halvekutils/qt/helpers/Keys.h>
#include <halvekutils/qt/helpers/StatusLabel.h>

#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>

#include <algorithm>
#include <utility>

namespace halvek {

namespace {

constexpr int kMaxWordLength = 200;
constexpr int kWordInView = 12;  // letters
constexpr int kAroundText = 2;
constexpr double kReadable = 4.5;                     // the least contrast of a text
constexpr QRgb kMissed[] = {0xFFC01010, 0xFFFF8A80};  // reds for light and for dark ground

QColor MissedOn(const QColor& ground) {
    const QColor onLight(kMissed[0]);
    const bool isLight = design::Contrast(onLight, ground) >= kReadable;
    return isLight ? onLight : design::Visible(QColor(kMissed[1]), ground, kReadable);
}

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

FindBar::FindBar(std::unique_ptr<FindTarget> target, const QString& prompt, QWidget* parent)
    : QWidget(parent),
      target_(std::move(target)),
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
                                             tr("Previous (Shift+F3)"), [this] { FindNext(true); });
    QPushButton* const next =
        MakeButton("cmdFindNext", tr("Ne&xt"), tr("Next (F3)"), [this] { FindNext(false); });
    QPushButton* const close =
        MakeButton("cmdFindClose", tr("\u00D7"), tr("Close (Escape)"), [this] { Close(); });
    row->addWidget(previous);
    row->addWidget(next);
    row->addWidget(lblFind_);
    row->addWidget(close);
    // A button with the word, beside those of a dialog, would seem to close the dialog.
    close->setAccessibleName(tr("Close"));
    design::MakeAlike({previous, next});
    close->setFixedWidth(previous->minimumHeight());
    close->setMinimumHeight(previous->minimumHeight());
    // The box is not to jump while a word is typed.
    const QFontMetrics letters = lblFind_->fontMetrics();
    lblFind_->setMinimumWidth(std::max(letters.horizontalAdvance(tr("Not found")),
                                       letters.horizontalAdvance(target_->LongestText())) +
                              kAroundText);
    txtFind_->setMinimumWidth(letters.averageCharWidth() * kWordInView);
    connect(txtFind_, &QLineEdit::textEdited, this,
            [this] { GuardEvent(u"FindBar.txtFind_Change", [this] { FindTyped(); }); });
    hide();
}

FindBar::~FindBar() = default;

void FindBar::Open() {
    target_->Start();
    Refresh();
    show();
    txtFind_->setFocus(Qt::ShortcutFocusReason);
    txtFind_->selectAll();
}

void FindBar::Open(const QString& word) {
    Open();
    txtFind_->setText(word);
    FindTyped();
}

void FindBar::Close() {
    const bool hadKeyboard = HasKeyboard();
    hide();
    if (hadKeyboard) target_->Widget().setFocus(Qt::OtherFocusReason);
}

bool FindBar::HasKeyboard() const {
    const QWidget* const focus = window()->focusWidget();
    return focus != nullptr && isAncestorOf(focus);
}

void FindBar::FindFirst(const QString& word) {
    txtFind_->setText(word);
    FindTyped();
}

void FindBar::FindTyped() {
    target_->Find(txtFind_->text());
    Say(Now());
}

void FindBar::FindNext(bool backwards) {
    if (txtFind_->text().isEmpty()) {
        Open();
        return;
    }
    target_->FindNext(txtFind_->text(), backwards);
    Say(Now());
}

void FindBar::Take() {
    if (target_->Take()) {
        txtFind_->selectAll();
        Say(Now());
    } else {
        FindNext(false);
    }
}

void FindBar::Refresh() {
    const FindTarget::Outcome outcome = Now();
    const bool isSaid =
        outcome.text == lblFind_->text() && outcome.spoken == lblFind_->accessibleName();
    if (!isSaid) Say(outcome);
}

FindTarget::Outcome FindBar::Now() const {
    FindTarget::Outcome outcome;
    if (!txtFind_->text().isEmpty()) outcome = target_->Now();
    if (outcome.missed) outcome.text = tr("Not found");
    if (outcome.spoken.isEmpty()) outcome.spoken = outcome.text;
    return outcome;
}

void FindBar::Say(const FindTarget::Outcome& outcome) {
    QPalette box;
    QPalette label;
    if (outcome.missed) {
        box.setColor(QPalette::Text, MissedOn(palette().color(QPalette::Base)));
        label.setColor(QPalette::WindowText, MissedOn(palette().color(QPalette::Window)));
    }
    txtFind_->setPalette(box);
    txtFind_->setAccessibleDescription(outcome.spoken);
    lblFind_->setPalette(label);
    lblFind_->setAccessibleName(outcome.spoken);
    lblFind_->Tell(outcome.text);
}

bool FindBar::PressKey(const QKeyEvent& event) {
    if (event.key() == Qt::Key_Escape) {
        Close();
    } else if (!txtFind_->hasFocus()) {
        return false;
    } else if (IsEnter(event)) {
        // A key held down would take what it has just taken.
        if (!event.isAutoRepeat()) Take();
    } else if (event.key() == Qt::Key_Up || event.key() == Qt::Key_Down) {
        FindNext(event.key() == Qt::Key_Up);
    } else {
        return false;
    }
    return true;
}

void FindBar::keyPressEvent(QKeyEvent* event) {
    bool taken = true;
    GuardEvent(u"FindBar.KeyDown", [&] { taken = PressKey(*event); });
    if (!taken) QWidget::keyPressEvent(event);
}

}  // namespace halvek
