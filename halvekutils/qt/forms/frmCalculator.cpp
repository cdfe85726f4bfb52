// SPDX-License-Identifier: MIT
#include <halvekutils/qt/QtText.h>
#include <halvekutils/qt/forms/CalculatorPad.h>
#include <halvekutils/qt/forms/CalculatorStatus.h>
#include <halvekutils/qt/forms/FlashButton.h>
#include <halvekutils/qt/forms/frmCalculator.h>
#include <halvekutils/qt/helpers/Design.h>
#include <halvekutils/qt/helpers/EventGuard.h>
#include <halvekutils/qt/helpers/Metrics.h>
#include <halvekutils/qt/helpers/ModalOwner.h>

#include <QFontMetrics>
#include <QLineEdit>
#include <QMouseEvent>
#include <QSignalBlocker>

namespace halvek {

namespace {

constexpr double kDisplayFont = 1.8;  // times the desktop's

const char* const kLongestNumber = "-8.88888888888888E+888";

}  // namespace

frmCalculator::frmCalculator(const std::shared_ptr<Calculator>& rules, const Desktop& desktop)
    : DialogForm(rules, u"frmCalculator"),
      rules_(*rules),
      desktop_(desktop),
      box_(new QLineEdit(this)),
      status_(new CalculatorStatus(this)),
      pad_(new CalculatorPad(rules_, this)),
      keys_(rules_, *box_) {
    setWindowTitle(tr("Calculator"));
    BuildBox();
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

void frmCalculator::BuildBox() {
    box_->setObjectName(QLatin1String("txtOutput"));
    box_->setAccessibleName(tr("Display"));
    box_->setAlignment(Qt::AlignRight);
    box_->setFont(design::ScaledFont(kDisplayFont));
    const QFontMetrics metrics(box_->font());
    const int around = metrics.averageCharWidth() * 2;
    box_->setMinimumWidth(metrics.horizontalAdvance(QLatin1String(kLongestNumber)) + around);
    // Nothing but keys and Ctrl+V, which the rules check, may put text into the box.
    box_->setContextMenuPolicy(Qt::NoContextMenu);
    box_->setAcceptDrops(false);
    box_->setAttribute(Qt::WA_InputMethodEnabled, false);
    box_->installEventFilter(this);
    connect(box_, &QLineEdit::textChanged, this, [this](const QString& text) {
        GuardEvent(u"frmCalculator.txtOutput_Change", [&] { rules_.EditDisplay(text); });
    });
}

QWidget* frmCalculator::FocusedControl() const {
    const int focus = rules_.Focus();
    return focus == Calculator::kBox ? static_cast<QWidget*>(box_) : pad_->Button(focus);
}

QPoint frmCalculator::PlaceOf(const QWidget* owner) const {
    const Size frame = desktop_.FrameSize();
    const QSize added(TwipsToPixels(frame.width), TwipsToPixels(frame.height));
    return CentredPlace(sizeHint() + added, owner).topLeft();
}

void frmCalculator::HookedKeyDown(int KeyCode) {
    GuardEvent(u"frmCalculator.HookedKeyDown", [&] { rules_.HookedKeyDown(KeyCode); });
}

void frmCalculator::Refresh() {
    if (const QString display = ToQString(rules_.Display()); box_->text() != display) {
        const QSignalBlocker mirroring(box_);
        box_->setText(display);
    }
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
    return (watched == box_ && BoxEvent(*event)) || DialogForm::eventFilter(watched, event);
}

/// Whether the event is done with; any other goes on to the box.
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

// Reached by the keys that a button does not take.
void frmCalculator::keyPressEvent(QKeyEvent* event) {
    GuardEvent(u"frmCalculator.Form_KeyPress", [&] { keys_.Take(*event); });
    event->accept();
}

void frmCalculator::showEvent(QShowEvent* event) {
    DialogForm::showEvent(event);
    FocusedControl()->setFocus(Qt::ActiveWindowFocusReason);
}

}  // namespace halvek
