// SPDX-License-Identifier: MIT
#include <halvekutils/base/NumericText.h>
#include <halvekutils/qt/QtText.h>
#include <halvekutils/qt/forms/EventGuard.h>
#include <halvekutils/qt/forms/FlashButton.h>
#include <halvekutils/qt/forms/Keys.h>
#include <halvekutils/qt/forms/Metrics.h>
#include <halvekutils/qt/forms/ModalOwner.h>
#include <halvekutils/qt/forms/frmCalculator.h>

#include <QCloseEvent>
#include <QFontMetrics>
#include <QGridLayout>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QSignalBlocker>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <utility>

namespace halvek {

namespace {

// In twips.
constexpr std::int32_t kButtonWidth = 840;
constexpr std::int32_t kButtonHeight = 720;
constexpr std::int32_t kSpace = 90;
constexpr std::int32_t kMargin = 180;

// In points.
constexpr std::int32_t kDisplayFont = 16;
constexpr std::int32_t kButtonFont = 13;

const char* const kLongestNumber = "-8.88888888888888E+888";

/// The buttons as they lie before the user; the tab key follows them.
constexpr int kFace[4][5] = {
    {7, 8, 9, Calculator::kDivide, Calculator::kClear},
    {4, 5, 6, Calculator::kMultiply, Calculator::kEquals},
    {1, 2, 3, Calculator::kMinus, Calculator::kEquals},
    {0, Calculator::kPoint, Calculator::kChangeSign, Calculator::kPlus, Calculator::kReturn},
};

/// What screen readers and tool tips call the buttons behind the digits.
constexpr const char* kNames[] = {"change sign", "point",  "divide", "multiply",         "minus",
                                  "plus",        "equals", "clear",  "return the result"};
static_assert(Calculator::kChangeSign + std::size(kNames) == Calculator::kButtonCount);

/// The key code by which the rules know a key; 0 for a key they have no name for.
int KeyCodeOf(const QKeyEvent& key) {
    if (key.key() == Qt::Key_Escape) return 27;
    return key.key() == Qt::Key_Delete ? 46 : 0;
}

void ShowStatus(QLabel& label, const std::u16string& text) {
    label.setText(ToQString(text));
    label.setAccessibleDescription(label.text());
}

/// Whether a line edit would put the key's text in, as it does with Alt and a letter.
bool WouldBeInserted(const QKeyEvent& key) {
    const bool isCommand =
        key.modifiers().testFlag(Qt::ControlModifier) && !key.modifiers().testFlag(Qt::AltModifier);
    return !isCommand && !key.text().isEmpty() && key.text()[0].category() != QChar::Other_Control;
}

}  // namespace

frmCalculator::frmCalculator(std::shared_ptr<Calculator> rules, const Desktop& desktop)
    : rules_(std::move(rules)), desktop_(desktop), txtOutput_(new QLineEdit(this)) {
    setObjectName(QLatin1String("frmCalculator"));
    setWindowTitle(tr("Calculator"));
    setAttribute(Qt::WA_QuitOnClose, false);
    setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                   Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint);
    BuildBox();
    auto* const column = new QVBoxLayout(this);
    const int margin = TwipsToPixels(kMargin);
    column->setContentsMargins(margin, margin, margin, margin);
    column->setSpacing(TwipsToPixels(kSpace));
    column->setSizeConstraint(QLayout::SetFixedSize);
    column->addWidget(txtOutput_);
    column->addLayout(BuildStatus());
    column->addLayout(BuildButtons());
    rules_->Flashed = [this](int index) { arrCmd_[static_cast<std::size_t>(index)]->Flash(); };
    rules_->Changed = [this] { Sync(); };
    Sync();
}

frmCalculator::~frmCalculator() {
    rules_->Flashed = nullptr;
    rules_->Changed = nullptr;
    rules_->Abandon();
}

void frmCalculator::BuildBox() {
    txtOutput_->setObjectName(QLatin1String("txtOutput"));
    txtOutput_->setAccessibleName(tr("Display"));
    txtOutput_->setAlignment(Qt::AlignRight);
    txtOutput_->setFont(ToQFont({{}, kDisplayFont}));
    const QFontMetrics metrics(txtOutput_->font());
    const int around = metrics.averageCharWidth() * 2;
    txtOutput_->setMinimumWidth(metrics.horizontalAdvance(QLatin1String(kLongestNumber)) + around);
    // Nothing but keys and Ctrl+V, which the rules check, may put text into the box.
    txtOutput_->setContextMenuPolicy(Qt::NoContextMenu);
    txtOutput_->setAcceptDrops(false);
    txtOutput_->setAttribute(Qt::WA_InputMethodEnabled, false);
    txtOutput_->installEventFilter(this);
    connect(txtOutput_, &QLineEdit::textChanged, this, [this](const QString& text) {
        GuardEvent(u"frmCalculator.txtOutput_Change", [&] { rules_->EditDisplay(text); });
    });
}

QGridLayout* frmCalculator::BuildStatus() {
    auto* const grid = new QGridLayout;
    grid->setSpacing(TwipsToPixels(kSpace));
    lblMEM_ = AddStatus(*grid, "lblMEM", tr("MEM"), 0, 0, 3);
    lblOp_ = AddStatus(*grid, "lblOp", tr("last operator"), 1, 0);
    lblNumDone_ = AddStatus(*grid, "lblNumDone", tr("number done"), 1, 2);
    for (const int column : {1, 3}) grid->setColumnStretch(column, 1);
    return grid;
}

QLabel* frmCalculator::AddStatus(QGridLayout& grid, const char* name, const QString& caption,
                                 int row, int column, int columns) {
    auto* const value = new QLabel(this);
    value->setObjectName(QLatin1String(name));
    value->setTextFormat(Qt::PlainText);
    QFont font = value->font();
    font.setBold(true);
    value->setFont(font);
    value->setAccessibleName(caption);
    value->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    grid.addWidget(new QLabel(caption, this), row, column);
    grid.addWidget(value, row, column + 1, 1, columns);
    return value;
}

QGridLayout* frmCalculator::BuildButtons() {
    auto* const grid = new QGridLayout;
    grid->setSpacing(TwipsToPixels(kSpace));
    for (int row = 0; row < 4; ++row) {
        for (int column = 0; column < 5; ++column) {
            const int index = kFace[row][column];
            const int rows = index == Calculator::kEquals ? 2 : 1;
            FlashButton*& button = arrCmd_[static_cast<std::size_t>(index)];
            if (button != nullptr) continue;
            button = MakeButton(index);
            grid->addWidget(button, row, column, rows, 1);
        }
    }
    return grid;
}

FlashButton* frmCalculator::MakeButton(int index) {
    auto* const button = new FlashButton(ToCaption(Calculator::Caption(index)), this);
    button->setObjectName(QStringLiteral("arrCmd_%1").arg(index));
    if (index >= Calculator::kChangeSign) {
        button->setAccessibleName(tr(kNames[index - Calculator::kChangeSign]));
        button->setToolTip(button->accessibleName());
    } else {
        button->setAccessibleName(button->text());
    }
    button->setFont(ToQFont({{}, kButtonFont}));
    button->setMinimumSize(TwipsToPixels(kButtonWidth), TwipsToPixels(kButtonHeight));
    button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    button->setAutoDefault(false);
    button->installEventFilter(this);
    connect(button, &QPushButton::clicked, this, [this, index] {
        GuardEvent(u"frmCalculator.arrCmd_Click", [this, index] { rules_->Press(index); });
    });
    return button;
}

QWidget* frmCalculator::ControlOf(int index) const {
    if (index == Calculator::kBox) return txtOutput_;
    return arrCmd_[static_cast<std::size_t>(index)];
}

void frmCalculator::ShowModal() {
    show_.Modal([this](const QWidget* owner) {
        const Size frame = desktop_.FrameSize();
        const QSize added(TwipsToPixels(frame.width), TwipsToPixels(frame.height));
        return CentredPlace(sizeHint() + added, owner).topLeft();
    });
}

void frmCalculator::HookedKeyDown(int KeyCode) {
    GuardEvent(u"frmCalculator.HookedKeyDown", [&] { rules_->HookedKeyDown(KeyCode); });
}

void frmCalculator::Sync() {
    if (const QString display = ToQString(rules_->Display()); txtOutput_->text() != display) {
        const QSignalBlocker mirroring(txtOutput_);
        txtOutput_->setText(display);
    }
    ShowStatus(*lblMEM_, rules_->Accumulator());
    ShowStatus(*lblOp_, rules_->LastOperator());
    ShowStatus(*lblNumDone_, BooleanText(rules_->NumberDone()));
    ControlOf(rules_->Focus())->setFocus(Qt::OtherFocusReason);
    Announce();
    if (rules_->IsOpen()) return;
    for (FlashButton* const button : arrCmd_) button->EndFlash();
    show_.End();
}

/// A screen reader says what changes about the button that has the focus; the box it reads anyway.
void frmCalculator::Announce() {
    const QString shown = ToQString(rules_->Display());
    const QString display = tr("Display") + u' ' + (shown.isEmpty() ? tr("empty") : shown);
    const QWidget* const focused = ControlOf(rules_->Focus());
    for (FlashButton* const button : arrCmd_) {
        button->setAccessibleDescription(button == focused ? display : QString());
    }
}

bool frmCalculator::eventFilter(QObject* watched, QEvent* event) {
    bool taken = false;
    if (event->type() == QEvent::FocusIn) {
        const auto button = std::ranges::find(arrCmd_, watched);
        rules_->FocusOn(button == arrCmd_.end() ? Calculator::kBox
                                                : static_cast<int>(button - arrCmd_.begin()));
        Announce();
    } else if (watched == txtOutput_ && event->type() == QEvent::KeyPress) {
        GuardEvent(u"frmCalculator.Form_KeyPress",
                   [&] { taken = TakeKey(*static_cast<QKeyEvent*>(event)); });
    } else if (watched == txtOutput_ && event->type() == QEvent::MouseButtonRelease &&
               static_cast<QMouseEvent*>(event)->button() == Qt::MiddleButton) {
        GuardEvent(u"frmCalculator.txtOutput_MouseUp", [&] { Paste(QClipboard::Selection); });
        taken = true;
    }
    return taken || QDialog::eventFilter(watched, event);
}

// Reached by the keys that a button does not take. QDialog would end on Escape; the rules decide.
void frmCalculator::keyPressEvent(QKeyEvent* event) {
    GuardEvent(u"frmCalculator.Form_KeyPress", [&] { TakeKey(*event); });
    event->accept();
}

/// Whether the key is done with; any other goes on to the box.
bool frmCalculator::TakeKey(const QKeyEvent& key) {
    const bool inBox = rules_->Focus() == Calculator::kBox;
    const bool pastes = key.matches(QKeySequence::Paste);
    // A key that is held down counts once, and not at all when it was before the calculator opened.
    if (key.isAutoRepeat() && (pastes || !inBox)) return true;
    if (pastes) {
        Paste(QClipboard::Clipboard);
        return true;
    }
    if (key.matches(QKeySequence::Copy)) {
        Copy();
        return true;
    }
    if (IsEnter(key)) {
        if (!inBox) rules_->Press(rules_->Focus());
        return true;
    }
    return rules_->KeyDown(KeyCodeOf(key)) || TypeKey(key);
}

bool frmCalculator::TypeKey(const QKeyEvent& key) {
    const char16_t typed = TypedBy(key);
    if (typed == 0) return WouldBeInserted(key);
    if (!rules_->KeyPress(typed)) return true;
    if (!BoxIsFull()) return false;
    Beep();
    return true;
}

bool frmCalculator::BoxIsFull() const {
    const qsizetype kept = txtOutput_->text().size() - txtOutput_->selectedText().size();
    return kept >= static_cast<qsizetype>(Calculator::kMaxLength);
}

void frmCalculator::Copy() const {
    const std::u16string number = rules_->Copy();
    if (!number.empty()) QGuiApplication::clipboard()->setText(ToQString(number));
}

void frmCalculator::Paste(QClipboard::Mode mode) {
    const bool inBox = rules_->Focus() == Calculator::kBox && txtOutput_->hasSelectedText();
    rules_->Paste(QGuiApplication::clipboard()->text(mode),
                  inBox ? static_cast<std::size_t>(txtOutput_->selectionStart()) : 0,
                  inBox ? static_cast<std::size_t>(txtOutput_->selectionLength()) : 0);
}

void frmCalculator::CloseByUser() {
    GuardEvent(u"frmCalculator.Form_QueryUnload", [this] { rules_->CloseByUser(); });
}

void frmCalculator::closeEvent(QCloseEvent* event) {
    CloseByUser();
    event->setAccepted(!rules_->IsOpen());
}

void frmCalculator::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    ControlOf(rules_->Focus())->setFocus(Qt::ActiveWindowFocusReason);
}

void frmCalculator::reject() {
    CloseByUser();
}

}  // namespace halvek
