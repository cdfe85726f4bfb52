// SPDX-License-Identifier: MIT
#include <halvekutils/qt/forms/DialogForm.h>
#include <halvekutils/qt/helpers/EventGuard.h>
#include <halvekutils/qt/helpers/Keys.h>
#include <halvekutils/qt/helpers/Metrics.h>
#include <halvekutils/qt/helpers/StaleKeys.h>
#include <halvekutils/qt/helpers/WindowOpening.h>

#include <QCloseEvent>
#include <QPushButton>

#include <utility>

namespace halvek {

DialogForm::DialogForm(std::shared_ptr<Dialog> rules, const char16_t* name)
    : rules_(std::move(rules)), name_(name) {
    setObjectName(QString::fromUtf16(name));
    setAttribute(Qt::WA_QuitOnClose, false);
    setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                   Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint);
    new StaleKeys(*this);
}

DialogForm::~DialogForm() {
    rules_->Changed = nullptr;
    Abandon();
}

void DialogForm::ShowModal() {
    Follow();
    show_.Modal(OwnerAsked(), [this](const QWidget* owner) { return PlaceOf(owner); });
}

void DialogForm::ShowModeless() {
    Follow();
    show_.Modeless(OwnerAsked(), [this](const QWidget* owner) { return PlaceOf(owner); });
}

// Only once the window is shown: a form under construction lacks some parts.
void DialogForm::Follow() {
    rules_->Changed = [this] { ShowRules(); };
    ShowRules();
}

// A dialog that has ended leaves the screen even if its last state cannot be shown.
void DialogForm::ShowRules() {
    try {
        Refresh();
    } catch (...) {
        EndShow();
        throw;
    }
    EndShow();
}

void DialogForm::EndShow() {
    if (rules_->IsOpen()) return;
    try {
        show_.End();
    } catch (...) {
        emit Ended();
        throw;
    }
    emit Ended();
}

QPoint DialogForm::PlaceOf(const QWidget* owner) const {
    const QRect frame = WindowOpening::FrameOf(*this);
    const bool isFramed = isVisible() && !WindowOpening::MarginsOf(*this).isNull();
    const Size outer =
        isFramed ? Size{PixelsToTwips(frame.width()), PixelsToTwips(frame.height())} : outer_;
    const bool isAtOwner = owner != nullptr && !anchor_.screen && !anchor_.HasPosition();
    const Rect screen = isAtOwner ? ToRect(WindowOpening::UsableArea(owner->screen())) : screen_;
    const Point corner = PlacePopup(anchor_, outer, screen);
    return {TwipsToPixels(corner.left), TwipsToPixels(corner.top)};
}

QWidget* DialogForm::OwnerAsked() const {
    return QWidget::find(anchor_.window);
}

void DialogForm::OpenAt(const PopupAnchor& anchor, Size outer, const Desktop& desktop) {
    anchor_ = anchor;
    screen_ = ScreenOf(anchor, desktop);
    outer_ = outer;
}

void DialogForm::reject() {
    GuardEvent(name_, u".Form_QueryUnload", [this] { rules_->Close(); });
}

void DialogForm::Abandon() {
    GuardEvent(name_, u".Form_Unload", [this] { rules_->Abandon(); });
}

void DialogForm::keyPressEvent(QKeyEvent* event) {
    auto* const button = qobject_cast<QPushButton*>(focusWidget());
    if (event->key() == Qt::Key_Escape) {
        reject();
    } else if (IsEnter(*event) && button != nullptr) {
        button->click();
    }
    event->accept();
}

void DialogForm::closeEvent(QCloseEvent* event) {
    reject();
    event->setAccepted(!rules_->IsOpen());
}

}  // namespace halvek
