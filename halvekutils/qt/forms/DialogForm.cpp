// SPDX-License-Identifier: MIT
#include <halvekutils/qt/forms/DialogForm.h>
#include <halvekutils/qt/helpers/EventGuard.h>
#include <halvekutils/qt/helpers/Keys.h>
#include <halvekutils/qt/helpers/Metrics.h>
#include <halvekutils/qt/helpers/StaleKeys.h>

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
    show_.Modal([this](const QWidget* owner) { return PlaceOf(owner); });
}

void DialogForm::ShowModeless() {
    Follow();
    show_.Modeless([this](const QWidget* owner) { return PlaceOf(owner); });
}

// Only once the window is shown: a form under construction lacks some parts.
void DialogForm::Follow() {
    const auto follow = [this] {
        Refresh();
        if (rules_->IsOpen()) return;
        show_.End();
        emit Ended();
    };
    rules_->Changed = follow;
    follow();
}

QPoint DialogForm::PlaceOf(const QWidget*) const {
    return place_;
}

void DialogForm::OpenAt(const PopupAnchor& anchor, Size outer, const Desktop& desktop) {
    const Point corner = PlacePopup(anchor, outer, ScreenOf(anchor, desktop));
    place_ = QPoint(TwipsToPixels(corner.left), TwipsToPixels(corner.top));
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
