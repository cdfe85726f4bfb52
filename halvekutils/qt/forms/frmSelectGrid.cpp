// SPDX-License-Identifier: MIT
#include <halvekutils/qt/QtText.h>
#include <halvekutils/qt/forms/FindEntries.h>
#include <halvekutils/qt/forms/SelectGridView.h>
#include <halvekutils/qt/forms/TypedCodesEdit.h>
#include <halvekutils/qt/forms/frmSelectGrid.h>
#include <halvekutils/qt/helpers/Design.h>
#include <halvekutils/qt/helpers/EventGuard.h>
#include <halvekutils/qt/helpers/FindBar.h>
#include <halvekutils/qt/helpers/Keys.h>
#include <halvekutils/qt/helpers/Metrics.h>
#include <halvekutils/selection/SelectGridLayout.h>

#include <QKeyEvent>
#include <QPushButton>
#include <QStyle>

namespace halvek {

namespace {

QPushButton* MakeButton(QWidget* parent, const char* name, const QString& caption,
                        const QString& toolTip) {
    QPushButton* const button = design::NewButton(name, caption, parent);
    button->setToolTip(toolTip);
    // A click leaves the focus where it is: OK checks the box itself, and Cancel does not.
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

}  // namespace

frmSelectGrid::frmSelectGrid(const std::shared_ptr<SelectGrid>& rules, const Desktop& desktop)
    : DialogForm(rules, u"frmSelectGrid"), rules_(*rules) {
    setWindowTitle(ToWindowTitle(rules_.Caption()));
    setFont(ToQFont(SelectControlFont()));  // first: the parts measure their captions
    BuildParts();
    ConnectParts();
    ApplyLayout(desktop);
}

/// In the order in which Tab goes through them.
void frmSelectGrid::BuildParts() {
    typedCodes_ = new TypedCodesEdit(rules_, this);
    grid_ = new SelectGridView(rules_, this);
    grid_->setAccessibleName(tr("Codes"));
    findBar_ =
        new FindBar(std::make_unique<FindEntries>(rules_, *grid_), tr("Find a name or code"), this);
    okButton_ = MakeButton(this, "cmdOK", tr("&OK"), tr("Select and Close"));
    cancelButton_ = MakeButton(this, "cmdExit", tr("C&ancel"), tr("Close"));
}

void frmSelectGrid::ConnectParts() {
    grid_->AskBeforeFocus([this] { return MayLeaveBox(); });
    connect(okButton_, &QPushButton::clicked, this,
            [this] { GuardEvent(u"frmSelectGrid.cmdOK_Click", [this] { Accept(); }); });
    connect(cancelButton_, &QPushButton::clicked, this,
            [this] { GuardEvent(u"frmSelectGrid.cmdExit_Click", [this] { rules_.Close(); }); });
    connect(grid_, &SelectGridView::Accepted, this, &frmSelectGrid::Accept);
    connect(grid_, &SelectGridView::FindAsked, this, &frmSelectGrid::OpenFind);
    connect(typedCodes_, &TypedCodesEdit::Accepted, this, &frmSelectGrid::Accept);
    connect(typedCodes_, &TypedCodesEdit::WentDown, this, [this] {
        if (MayLeaveBox()) grid_->setFocus(Qt::TabFocusReason);
    });
    // A click in the bar would take the focus without asking.
    for (QWidget* const part : findBar_->findChildren<QWidget*>()) {
        if (part->focusPolicy() == Qt::StrongFocus) part->setFocusPolicy(Qt::TabFocus);
        part->installEventFilter(this);
    }
}

void frmSelectGrid::ApplyLayout(const Desktop& desktop) {
    SelectGridContent content;
    content.longestCodeLength = rules_.LongestCodeLength();
    content.rowCount = rules_.RowCount();
    content.columns = rules_.ShownColumns();
    content.longestDescriptions = rules_.LongestDescriptions();
    content.findBarWidth = PixelsToTwips(findBar_->minimumSizeHint().width());
    content.scrollBarWidth =
        PixelsToTwips(style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, grid_));
    content.gridBorder = PixelsToTwips(grid_->frameWidth());
    const Rect screen = ScreenOf(rules_.Anchor(), desktop);
    const SelectGridLayout layout =
        LayOutSelectGrid(content, desktop, {screen.width, screen.height}, desktop.FrameSize());
    setFixedSize(TwipsToPixels(layout.inner.width), TwipsToPixels(layout.inner.height));
    typedCodes_->setGeometry(ToQRect(layout.box));
    grid_->ApplyLayout(layout);
    findBar_->setGeometry(ToQRect(layout.find));
    okButton_->setGeometry(ToQRect(layout.ok));
    cancelButton_->setGeometry(ToQRect(layout.exit));
    OpenAt(rules_.Anchor(), layout.form, desktop);
}

void frmSelectGrid::Refresh() {
    typedCodes_->Refresh();
    grid_->Refresh();
    findBar_->Refresh();
    grid_->KeepRing(findBar_->HasKeyboard() && rules_.FoundPlace() > 0);
}

void frmSelectGrid::Accept() {
    rules_.CapitalizeCodes();
    rules_.Accept();
    if (rules_.IsOpen()) typedCodes_->Return();
}

bool frmSelectGrid::MayLeaveBox() {
    return !typedCodes_->hasFocus() || typedCodes_->MayBeLeft();
}

bool frmSelectGrid::focusNextPrevChild(bool next) {
    bool mayLeave = false;
    GuardEvent(u"frmSelectGrid.txtSelect_Validate", [&] { mayLeave = MayLeaveBox(); });
    return !mayLeave || DialogForm::focusNextPrevChild(next);
}

void frmSelectGrid::OpenFind(const QString& word) {
    if (!MayLeaveBox()) return;
    word.isEmpty() ? findBar_->Open() : findBar_->Open(word);
    Refresh();
}

// Keys that no part has taken
void frmSelectGrid::keyPressEvent(QKeyEvent* event) {
    bool taken = true;
    GuardEvent(u"frmSelectGrid.Form_KeyDown", [&] { taken = PressKey(*event); });
    if (!taken) DialogForm::keyPressEvent(event);
}

bool frmSelectGrid::PressKey(const QKeyEvent& event) {
    const bool isPlain = (event.modifiers() & kCommands) == Qt::NoModifier;
    if (event.matches(QKeySequence::Find)) {
        OpenFind({});
    } else if (event.key() == Qt::Key_F3 && isPlain) {
        const bool backwards = (event.modifiers() & Qt::ShiftModifier) != 0;
        if (MayLeaveBox()) findBar_->FindNext(backwards);
    } else if (event.key() == Qt::Key_F4 && isPlain) {
        rules_.GoToNextTicked();
    } else if (event.key() == Qt::Key_Escape && findBar_->isVisible()) {
        findBar_->Close();
    } else {
        return false;
    }
    return true;
}

bool frmSelectGrid::eventFilter(QObject* watched, QEvent* event) {
    bool mayLeave = true;
    auto* const word = qobject_cast<QLineEdit*>(watched);
    if (event->type() == QEvent::MouseButtonPress && word != nullptr) {
        GuardEvent(u"frmSelectGrid.txtSelect_Validate", [&] { mayLeave = MayLeaveBox(); });
        if (mayLeave) word->setFocus(Qt::MouseFocusReason);
    } else if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) {
        grid_->KeepRing(event->type() == QEvent::FocusIn && rules_.FoundPlace() > 0);
    }
    return !mayLeave || DialogForm::eventFilter(watched, event);
}

void frmSelectGrid::showEvent(QShowEvent* event) {
    DialogForm::showEvent(event);
    typedCodes_->setFocus(Qt::OtherFocusReason);
    grid_->ShowCurrent();
}

}  // namespace halvek
