// SPDX-License-Identifier: MIT
#include <halvekutils/qt/QtText.h>
#include <halvekutils/qt/forms/EventGuard.h>
#include <halvekutils/qt/forms/Keys.h>
#include <halvekutils/qt/forms/Metrics.h>
#include <halvekutils/qt/forms/SelectGridView.h>
#include <halvekutils/qt/forms/TypedCodesEdit.h>
#include <halvekutils/qt/forms/frmSelectGrid.h>
#include <halvekutils/selection/SelectGridLayout.h>

#include <QCloseEvent>
#include <QKeyEvent>
#include <QPushButton>
#include <QStyle>

#include <utility>

namespace halvek {

namespace {

QPushButton* MakeButton(QWidget* parent, const char* name, const QString& caption,
                        const QString& toolTip) {
    auto* const button = new QPushButton(caption, parent);
    button->setObjectName(QLatin1String(name));
    button->setAccessibleName(QString(caption).remove(QLatin1Char('&')));
    button->setToolTip(toolTip);
    button->setAutoDefault(false);
    // A click leaves the focus where it is: OK checks the box itself, and Cancel does not.
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

}  // namespace

frmSelectGrid::frmSelectGrid(std::shared_ptr<SelectGrid> rules, const Desktop& desktop)
    : rules_(std::move(rules)),
      txtSelect_(new TypedCodesEdit(*rules_, this)),
      grdSelection_(new SelectGridView(*rules_, this)),
      cmdOK_(MakeButton(this, "cmdOK", tr("&OK"), tr("Select and Close"))),
      cmdExit_(MakeButton(this, "cmdExit", tr("C&ancel"), tr("Close"))),
      show_(*this, [this] { CloseByUser(); }) {
    setObjectName(QLatin1String("frmSelectGrid"));
    setAttribute(Qt::WA_QuitOnClose, false);
    setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                   Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint);
    setWindowTitle(ToWindowTitle(rules_->Caption()));
    setFont(ToQFont(CodeFont()));
    grdSelection_->setAccessibleName(windowTitle());
    grdSelection_->MayTakeFocus = [this] { return MayLeaveBox(); };
    connect(cmdOK_, &QPushButton::clicked, this,
            [this] { GuardEvent(u"frmSelectGrid.cmdOK_Click", [this] { rules_->Accept(); }); });
    connect(cmdExit_, &QPushButton::clicked, this, &frmSelectGrid::CloseByUser);
    ApplyLayout(desktop);
    rules_->Changed = [this] { Sync(); };
    Sync();
}

frmSelectGrid::~frmSelectGrid() {
    rules_->Changed = nullptr;
    rules_->Abandon();
}

void frmSelectGrid::ApplyLayout(const Desktop& desktop) {
    SelectGridContent content;
    content.longestCodeLength = rules_->LongestCodeLength();
    content.rowCount = rules_->RowCount();
    content.scrollBarWidth =
        PixelsToTwips(style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, grdSelection_));
    content.gridBorder = PixelsToTwips(grdSelection_->frameWidth());
    const Rect screen = ScreenOf(rules_->Anchor(), desktop);
    const SelectGridLayout layout =
        LayOutSelectGrid(content, desktop, {screen.width, screen.height}, desktop.FrameSize());
    setFixedSize(TwipsToPixels(layout.inner.width), TwipsToPixels(layout.inner.height));
    txtSelect_->setGeometry(ToQRect(layout.box));
    grdSelection_->ApplyLayout(layout);
    cmdOK_->setGeometry(ToQRect(layout.ok));
    cmdExit_->setGeometry(ToQRect(layout.exit));
    place_ = PlacePopup(rules_->Anchor(), layout.form, screen);
}

void frmSelectGrid::ShowModal() {
    show_.Modal([this](const QWidget*) {
        return QPoint(TwipsToPixels(place_.left), TwipsToPixels(place_.top));
    });
}

void frmSelectGrid::Sync() {
    txtSelect_->Refresh();
    grdSelection_->Refresh();
    if (!rules_->IsOpen()) show_.End();
}

bool frmSelectGrid::MayLeaveBox() {
    return !txtSelect_->hasFocus() || rules_->ValidateBox();
}

// Backwards from the box lies Cancel, which never asks.
bool frmSelectGrid::focusNextPrevChild(bool next) {
    bool mayLeave = true;
    GuardEvent(u"frmSelectGrid.txtSelect_Validate", [&] { mayLeave = !next || MayLeaveBox(); });
    return !mayLeave || QDialog::focusNextPrevChild(next);
}

// Reached by keys that no control took. QDialog would press buttons on Enter.
void frmSelectGrid::keyPressEvent(QKeyEvent* event) {
    auto* const button = qobject_cast<QPushButton*>(focusWidget());
    if (event->key() == Qt::Key_Escape) {
        CloseByUser();
    } else if (IsEnter(*event) && button != nullptr) {
        button->click();
    }
    event->accept();
}

void frmSelectGrid::CloseByUser() {
    GuardEvent(u"frmSelectGrid.cmdExit_Click", [this] { rules_->Cancel(); });
}

void frmSelectGrid::closeEvent(QCloseEvent* event) {
    CloseByUser();
    event->setAccepted(!rules_->IsOpen());
}

void frmSelectGrid::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    txtSelect_->setFocus(Qt::OtherFocusReason);
}

void frmSelectGrid::reject() {
    CloseByUser();
}

}  // namespace halvek
