// SPDX-License-Identifier: MIT
#include <halvekutils/dialogs/MessageBoxButtons.h>
#include <halvekutils/qt/QtText.h>
#include <halvekutils/qt/forms/CountdownLine.h>
#include <halvekutils/qt/forms/MessageIcons.h>
#include <halvekutils/qt/forms/MessagePalette.h>
#include <halvekutils/qt/forms/MessageText.h>
#include <halvekutils/qt/forms/frmMessageBox.h>
#include <halvekutils/qt/helpers/CloseBox.h>
#include <halvekutils/qt/helpers/Design.h>
#include <halvekutils/qt/helpers/EventGuard.h>
#include <halvekutils/qt/helpers/FocusRing.h>
#include <halvekutils/qt/helpers/Keys.h>
#include <halvekutils/qt/helpers/Metrics.h>
#include <halvekutils/qt/helpers/SpokenNotice.h>
#include <halvekutils/qt/helpers/WindowOpening.h>

#include <QApplication>
#include <QFrame>
#include <QKeyEvent>
#include <QPushButton>
#include <QScrollBar>
#include <QToolButton>
#include <QWheelEvent>

#include <algorithm>
#include <utility>

namespace halvek {

namespace {

constexpr int kOneSecond = 1000;
constexpr qsizetype kDescriptionLength = 1000;

/// The rules' code for a key; 0 for a key they do not know.
int KeyCodeOf(const QKeyEvent& event) {
    const int key = event.key();
    if (key >= Qt::Key_A && key <= Qt::Key_Z) return key;
    return key == Qt::Key_Escape ? 27 : 0;
}

unsigned ModifiersOf(const QKeyEvent& event) {
    unsigned modifiers = MessageBox::kNoModifier;
    if (event.modifiers() & Qt::ShiftModifier) modifiers |= MessageBox::kShift;
    if (event.modifiers() & Qt::ControlModifier) modifiers |= MessageBox::kControl;
    if (event.modifiers() & (Qt::AltModifier | Qt::MetaModifier)) modifiers |= MessageBox::kAlt;
    return modifiers;
}

QFrame* MakeFrame(QWidget* parent, const char* name, const Rect& place) {
    auto* const frame = new QFrame(parent);
    frame->setObjectName(QLatin1String(name));
    frame->setGeometry(ToQRect(place));
    return frame;
}

}  // namespace

frmMessageBox::frmMessageBox(std::shared_ptr<MessageBox> box)
    : DialogForm(box, u"frmMessageBox"),
      box_(std::move(box)),
      textFrame_(MakeFrame(this, "frMSG", box_->Layout().messageFrame)),
      buttonFrame_(MakeFrame(this, "frButtons", box_->Layout().buttonFrame)),
      notice_(new SpokenNotice(*this)) {
    if (!box_->HasCloseBox()) RemoveCloseBox(*this);
    const Size inner = box_->Layout().inner;
    setFixedSize(TwipsToPixels(inner.width), TwipsToPixels(inner.height));
    const QPalette buttonColors = MessageButtonPalette(box_->Colors(), palette());
    // Before the parts, which take their palettes when they are made.
    setPalette(MessagePalette(box_->Colors(), palette()));
    BuildText();
    BuildButtons(buttonColors);
    if (box_->Layout().canScroll) BuildScrollButtons(buttonColors);
    BuildIcon();
    if (box_->CountdownSeconds() > 0) {
        countdownLine_ = new CountdownLine(this);
        countdownLine_->setFixedWidth(width());
    }
    countdown_.setObjectName(QLatin1String("tmrUnload"));
    countdown_.setInterval(kOneSecond);
    Describe();
    connect(&countdown_, &QTimer::timeout, this,
            [this] { GuardEvent(u"frmMessageBox.tmrUnload_Timer", [this] { box_->Tick(); }); });
}

void frmMessageBox::BuildIcon() {
    auto* const icon = new MessageIcon(this);
    icon->setObjectName(QLatin1String("Image1"));
    icon->SetNumber(box_->Picture());
    icon->setGeometry(ToQRect(box_->Layout().icon));
    icon->setVisible(box_->Picture() != 0);
}

void frmMessageBox::BuildText() {
    text_ = new MessageText(*box_, textFrame_);
    connect(text_->verticalScrollBar(), &QScrollBar::valueChanged, this, [this](int value) {
        GuardEvent(u"frmMessageBox.lblText_Scroll", [this, value] { TextScrolled(value); });
    });
}

void frmMessageBox::BuildButtons(const QPalette& colors) {
    buttonFrame_->setVisible(ButtonCount(box_->Buttons()) > 0);
    for (int i = 0; i < 3; ++i) {
        const auto& place = box_->Layout().buttons[static_cast<std::size_t>(i)];
        if (!place) continue;
        auto* const button = design::NewButton(qPrintable(QStringLiteral("arrCmd_%1").arg(i)),
                                               ToQString(box_->ButtonCaption(i)), buttonFrame_);
        button->setFont(ToQFont(DesktopFont()));
        button->setPalette(colors);
        button->setGeometry(ToQRect(*place));
        button->installEventFilter(this);
        connect(button, &QPushButton::clicked, this, [this, i] {
            GuardEvent(u"frmMessageBox.arrCmd_Click", [this, i] { box_->Press(i); });
        });
        buttons_[static_cast<std::size_t>(i)] = button;
    }
}

void frmMessageBox::BuildScrollButtons(const QPalette& colors) {
    constexpr Qt::ArrowType kArrows[] = {Qt::DownArrow, Qt::UpArrow};
    const QString names[] = {tr("Later lines"), tr("Earlier lines")};
    for (int i = 0; i < 2; ++i) {
        auto* const button = new QToolButton(textFrame_);
        button->setObjectName(QStringLiteral("cmdUpDn_%1").arg(i));
        button->setAccessibleName(names[i]);
        button->setToolTip(names[i]);
        button->setArrowType(kArrows[i]);
        button->setAutoRepeat(true);
        button->setPalette(colors);
        button->setFocusPolicy(Qt::NoFocus);
        new FocusRing(*button);
        button->setGeometry(ToQRect(box_->Layout().scrollButtons[static_cast<std::size_t>(i)]));
        connect(button, &QToolButton::clicked, this, [this, i] {
            GuardEvent(u"frmMessageBox.cmdUpDn_Click", [this, i] { box_->PressScroll(i); });
        });
        scrollButtons_[static_cast<std::size_t>(i)] = button;
    }
}

QPoint frmMessageBox::PlaceOf(const QWidget* owner) const {
    const Size form = box_->Layout().form;
    const QSize outer(TwipsToPixels(form.width), TwipsToPixels(form.height));
    const auto position = box_->CentredOnOwner();
    const WindowOpening& opening = WindowOpening::OfApplication();
    if (!position) return opening.Centred(outer, owner).topLeft();
    const QPoint corner(TwipsToPixels(position->left), TwipsToPixels(position->top));
    const QScreen* const screen = owner != nullptr ? owner->screen() : opening.Screen();
    return WindowOpening::Inside(QRect(corner, outer), screen).topLeft();
}

QWidget* frmMessageBox::OwnerAsked() const {
    return QWidget::find(box_->OwnerWindow());
}

void frmMessageBox::Refresh() {
    setWindowTitle(ToWindowTitle(box_->Caption()));
    if (box_->CountdownRunning() != countdown_.isActive()) {
        CountdownStarts(box_->CountdownRunning());
    }
    if (countdownLine_ != nullptr) countdownLine_->Follow(*box_);
    text_->verticalScrollBar()->setValue(ScrolledPixels());
    if (scrollButtons_[0] == nullptr) return;
    scrollButtons_[0]->setEnabled(!AtLastLine());
    scrollButtons_[1]->setEnabled(box_->ScrollOffset() < 0);
}

void frmMessageBox::CountdownStarts(bool starts) {
    starts ? countdown_.start() : countdown_.stop();
    Describe();
    if (!starts && box_->IsOpen()) notice_->Say(tr("The countdown has stopped"));
}

void frmMessageBox::Describe() {
    const QString prompt = ToQString(box_->Prompt()).left(kDescriptionLength);
    const QString countdown = CountdownText(*box_);
    setAccessibleDescription(countdown.isEmpty() ? prompt : prompt + QLatin1Char('\n') + countdown);
}

bool frmMessageBox::AtLastLine() const {
    return -box_->ScrollOffset() >= box_->Layout().scrollRange;
}

int frmMessageBox::ScrolledPixels() const {
    const std::int32_t offset = -box_->ScrollOffset();
    if (offset > 0 && AtLastLine()) return text_->verticalScrollBar()->maximum();
    return TwipsToPixels(offset);
}

/// The text scrolls by itself while the mouse selects beyond its edge.
void frmMessageBox::TextScrolled(int pixels) {
    if (pixels == ScrolledPixels()) return;
    box_->ScrollBy(PixelsToTwips(pixels) + box_->ScrollOffset());
}

bool frmMessageBox::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress) return DialogForm::eventFilter(watched, event);
    auto* const key = static_cast<QKeyEvent*>(event);
    for (int i = 0; i < 3; ++i) {
        if (watched != buttons_[static_cast<std::size_t>(i)]) continue;
        bool taken = false;
        GuardEvent(u"frmMessageBox.arrCmd_KeyDown", [&] { taken = ButtonKey(i, *key); });
        return taken;
    }
    return DialogForm::eventFilter(watched, event);
}

/// True when the key is dealt with; any other goes on to the button.
bool frmMessageBox::ButtonKey(int index, const QKeyEvent& event) {
    if (IsEnter(event)) {
        box_->Press(index);
        return true;
    }
    const MessageBox::KeyAction action = box_->KeyDown(KeyCodeOf(event), ModifiersOf(event));
    if (action == MessageBox::KeyAction::Copy) text_->Copy();
    Refresh();
    return action != MessageBox::KeyAction::None || ScrollKey(event.key());
}

bool frmMessageBox::ScrollKey(int key) {
    const MessageBoxLayout& layout = box_->Layout();
    // A line that one page cuts off is whole on the next.
    const std::int32_t page = layout.viewHeight - LineHeight();
    switch (key) {
        case Qt::Key_PageDown:
            box_->ScrollBy(page);
            return true;
        case Qt::Key_PageUp:
            box_->ScrollBy(-page);
            return true;
        case Qt::Key_End:
            box_->ScrollBy(layout.scrollRange);
            return true;
        case Qt::Key_Home:
            box_->ScrollBy(-layout.scrollRange);
            return true;
        default:
            return false;
    }
}

std::int32_t frmMessageBox::LineHeight() const {
    return PixelsToTwips(text_->fontMetrics().lineSpacing());
}

// Gets the keys that no button took. QDialog would close the box on Escape; here the rules decide.
void frmMessageBox::keyPressEvent(QKeyEvent* event) {
    GuardEvent(u"frmMessageBox.Form_KeyPress", [this, event] {
        if (KeyCodeOf(*event) == 'C' && ModifiersOf(*event) == MessageBox::kControl) {
            box_->KeyDown('C', MessageBox::kControl);
            text_->Copy();
            Refresh();
        } else if (IsEnter(*event)) {
            box_->FormKeyPress(13);
        } else if (event->key() == Qt::Key_Escape) {
            box_->FormKeyPress(27);
        } else {
            ScrollKey(event->key());
        }
    });
    event->accept();
}

void frmMessageBox::wheelEvent(QWheelEvent* event) {
    constexpr int kStepsPerLine = 40;  // a notch of 120 scrolls three lines
    GuardEvent(u"frmMessageBox.Wheel", [this, event] {
        const std::int64_t turned = -std::int64_t{event->angleDelta().y()};
        const std::int64_t farthest = box_->Layout().scrollRange;
        const auto twips = std::clamp(turned * LineHeight() / kStepsPerLine, -farthest, farthest);
        box_->ScrollBy(static_cast<std::int32_t>(twips));
    });
    event->accept();
}

void frmMessageBox::showEvent(QShowEvent* event) {
    DialogForm::showEvent(event);
    if (buttons_[0] != nullptr) buttons_[0]->setFocus(Qt::ActiveWindowFocusReason);
}

}  // namespace halvek
