// SPDX-License-Identifier: MIT
#include <halvekutils/qt/QtText.h>
#include <halvekutils/qt/forms/SelectGridView.h>
#include <halvekutils/qt/forms/TypedCodesEdit.h>
#include <halvekutils/qt/forms/frmSelectGrid.h>
#include <halvekutils/qt/helpers/Design.h>
#include <halvekutils/qt/helpers/EventGuard.h>
#include <halvekutils/qt/helpers/Metrics.h>
#include <halvekutils/selection/SelectGridLayout.h>

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
    : DialogForm(rules, u"frmSelectGrid"),
      rules_(*rules),
      typedCodes_(new TypedCodesEdit(rules_, this)),
      grid_(new SelectGridView(rules_, this)),
      okButton_(MakeButton(this, "cmdOK", tr("&OK"), tr("Select and Close"))),
      cancelButton_(MakeButton(this, "cmdExit", tr("C&ancel"), tr("Close"))) {
    setWindowTitle(ToWindowTitle(rules_.Caption()));
    setFont(ToQFont(SelectControlFont()));
    grid_->setAccessibleName(tr("Codes"));
    grid_->MayTakeFocus = [this] { return MayLeaveBox(); };
    connect(okButton_, &QPushButton::clicked, this,
            [this] { GuardEvent(u"frmSelectGrid.cmdOK_Click", [this] { rules_.Accept(); }); });
    connect(cancelButton_, &QPushButton::clicked, this,
            [this] { GuardEvent(u"frmSelectGrid.cmdExit_Click", [this] { rules_.Close(); }); });
    ApplyLayout(desktop);
}

void frmSelectGrid::ApplyLayout(const Desktop& desktop) {
    SelectGridContent content;
    content.longestCodeLength = rules_.LongestCodeLength();
    content.rowCount = rules_.RowCount();
    content.scrollBarWidth =
        PixelsToTwips(style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, grid_));
    content.gridBorder = PixelsToTwips(grid_->frameWidth());
    const Rect screen = ScreenOf(rules_.Anchor(), desktop);
    const SelectGridLayout layout =
        LayOutSelectGrid(content, desktop, {screen.width, screen.height}, desktop.FrameSize());
    setFixedSize(TwipsToPixels(layout.inner.width), TwipsToPixels(layout.inner.height));
    typedCodes_->setGeometry(ToQRect(layout.box));
    grid_->ApplyLayout(layout);
    okButton_->setGeometry(ToQRect(layout.ok));
    cancelButton_->setGeometry(ToQRect(layout.exit));
    OpenAt(rules_.Anchor(), layout.form, desktop);
}

void frmSelectGrid::Refresh() {
    typedCodes_->Refresh();
    grid_->Refresh();
}

bool frmSelectGrid::MayLeaveBox() {
    return !typedCodes_->hasFocus() || rules_.ValidateBox();
}

// Shift+Tab in the box goes to Cancel, which never asks.
bool frmSelectGrid::focusNextPrevChild(bool next) {
    bool mayLeave = true;
    GuardEvent(u"frmSelectGrid.txtSelect_Validate", [&] { mayLeave = !next || MayLeaveBox(); });
    return !mayLeave || DialogForm::focusNextPrevChild(next);
}

void frmSelectGrid::showEvent(QShowEvent* event) {
    DialogForm::showEvent(event);
    typedCodes_->setFocus(Qt::OtherFocusReason);
}

}  // namespace halvek
