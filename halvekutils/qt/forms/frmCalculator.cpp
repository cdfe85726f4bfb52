// SPDX-License-Identifier: MIT
#include <halvekutils/qt/forms/CalculatorBox.h>
#include <halvekutils/qt/forms/CalculatorPad.h>
#include <halvekutils/qt/forms/CalculatorStatus.h>
#include <halvekutils/qt/forms/FlashButton.h>
#include <halvekutils/qt/forms/frmCalculator.h>
#include <halvekutils/qt/helpers/Design.h>
#include <halvekutils/qt/helpers/EventGuard.h>
#include <halvekutils/qt/helpers/Keys.h>
#include <halvekutils/qt/helpers/Metrics.h>
#include <halvekutils/qt/helpers/WindowOpening.h>

#include <QMouseEvent>

namespace halvek {

frmCalculator::frmCalculator(const std::shared_ptr<Calculator>& rules, const Desktop& desktop)
    : DialogForm(rules, u"frmCalculator"),
      rules_(*rules),
      desktop_(desktop),
      box_(new CalculatorBox(rules_, this)),
      status_(new CalculatorStatus(this)),
      pad_(new CalculatorPad(rules_, this)),
      keys_(rules_, *box_) {
    setWindowTitle(tr("Calculator"));
    box_->installEventFilter(this);
    status_->setSpacing(design::Gap());
    pad_->setSpacing(design::Gap());
    auto* const column = new QVBoxLayout(this);
    design::SpaceOut(*column);
    column->setSizeConstraint(QLayout::SetFixedSize);
    column->addWidget(box_);
    column->addLayout(status_);
    column->addLayout(pad_);
    rules_.Flashed = [this](int index) { pad_->Button(index)->Flash(); };
}

frmCalculator::~frmCalculator() {
    rules_.Flashed = nullptr;
}

QWidget* frmCalculator::FocusedControl() const {
    const int focus = rules_.Focus();
    return focus == Calculator::kBox ? static_cast<QWidget*>(box_) : pad_->Button(focus);
}

QPoint frmCalculator::PlaceOf(const QWidget* owner) const {
    const Size frame = desktop_.FrameSize();
    const QSize added(TwipsToPixels(frame.width), TwipsToPixels(frame.height));
    return WindowOpening::OfApplication().Centred(sizeHint() + added, owner).topLeft();
}

void frmCalculator::HookedKeyDown(int KeyCode) {
    GuardEvent(u"frmCalculator.HookedKeyDown", [&] { rules_.HookedKeyDown(KeyCode); });
}

void frmCalculator::Refresh() {
    box_->Refresh();
    status_->Refresh(rules_);
    FocusedControl()->setFocus(Qt::OtherFocusReason);
    pad_->Announce();
    if (!rules_.IsOpen()) pad_->EndFlashes();
}

bool frmCalculator::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusIn) {
        rules_.FocusOn(pad_->IndexOf(watched));
        pad_->Announce();
    }
    const bool taken = watched == box_ ? BoxEvent(*event) : ButtonEvent(*event);
    return taken || DialogForm::eventFilter(watched, event);
}

/// True when the event is dealt with; any other goes on to the box.
bool frmCalculator::BoxEvent(QEvent& event) {
    bool taken = false;
    if (event.type() == QEvent::KeyPress) {
        GuardEvent(u"frmCalculator.Form_KeyPress",
                   [&] { taken = keys_.Take(static_cast<QKeyEvent&>(event)); });
    } else if (event.type() == QEvent::MouseButtonRelease &&
               static_cast<QMouseEvent&>(event).button() == Qt::MiddleButton) {
        GuardEvent(u"frmCalculator.txtOutput_MouseUp", [&] { keys_.Paste(QClipboard::Selection); });
        taken = true;
    }
    return taken;
}

/// True when the event is dealt with; any other goes on to the button.
bool frmCalculator::ButtonEvent(QEvent& event) {
    bool taken = false;
    if (event.type() == QEvent::KeyPress) {
        // A button would take the key for an arrow.
        GuardEvent(u"frmCalculator.Form_KeyPress", [&] {
            auto& key = static_cast<QKeyEvent&>(event);
            taken = UnlockedDigitOf(key) != 0 && keys_.Take(key);
        });
    } else if (event.type() == QEvent::MouseButtonPress) {
        // Enter must complete the operation, not press the clicked button again.
        rules_.FocusOn(Calculator::kEquals);
        FocusedControl()->setFocus(Qt::MouseFocusReason);
    }
    return taken;
}

// Gets the keys that no button takes.
void frmCalculator::keyPressEvent(QKeyEvent* event) {
    GuardEvent(u"frmCalculator.Form_KeyPress", [&] { keys_.Take(*event); });
    event->accept();
}

void frmCalculator::showEvent(QShowEvent* event) {
    DialogForm::showEvent(event);
    FocusedControl()->setFocus(Qt::ActiveWindowFocusReason);
}

}  // namespace halvek
