// SPDX-License-Identifier: MIT
#include <halvekutils/core/Session.h>
#include <halvekutils/currency/ShownAmount.h>
#include <halvekutils/platform/TextField.h>
#include <halvekutils/qt/QtText.h>
#include <halvekutils/qt/currency/CurrencyFilter.h>
#include <halvekutils/qt/currency/CurrencyKeyEvent.h>
#include <halvekutils/qt/currency/CurrencyTyping.h>
#include <halvekutils/qt/currency/CurrencyValidator.h>
#include <halvekutils/qt/currency/CurrencyWatch.h>
#include <halvekutils/qt/helpers/EventGuard.h>
#include <halvekutils/qt/helpers/Keys.h>
#include <halvekutils/qt/helpers/LineEditCopy.h>

#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QMimeData>
#include <QPointer>
#include <QScopeGuard>

#include <algorithm>

namespace halvek {

namespace {

constexpr int kRoom = 64;

/// A delegate commits on Enter by a queued call, which this runs before the default button acts.
/// True when it closed the line edit.
bool CommitsBeforeEnter(const QLineEdit& line) {
    const QPointer<const QLineEdit> alive(&line);
    const bool hadFocus = line.hasFocus();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::MetaCall);
    return alive == nullptr || (hadFocus && !line.hasFocus());
}

/// True where the keyboard would write if the window were active.
bool HasFocusInWindow(const QLineEdit& line) {
    const QWidget* const proxy = line.focusProxy();
    return line.window()->focusWidget() == (proxy != nullptr ? proxy : &line);
}

}  // namespace

CurrencyFilter::CurrencyFilter(QLineEdit& line, AmountSign sign, std::shared_ptr<Utils> utils)
    : QObject(&line), sign_(sign), events_(sign, TheSession()), utils_(std::move(utils)) {
    line.setInputMask(QString());
    line.setMaxLength(std::max(line.maxLength(), kRoom));
    if (!(line.alignment() & Qt::AlignHCenter))
        line.setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    line.setText(line.text());  // clears the history: undo must not bring back an unchecked text
    line.setValidator(new CurrencyValidator(line, *this));
    line.installEventFilter(this);
    connect(&line, &QLineEdit::editingFinished, this, &CurrencyFilter::ShowAgain);
    connect(qApp, &QApplication::focusChanged, this,
            [this](const QWidget*, const QWidget* now) { FocusMoved(now); });
    CurrencyWatch::OfApplication();  // filters that a host installs later see events first
    Write(line, TextGiven(line.text()));
    if (line.hasFocus()) Enter(line);
}

CurrencyFilter::~CurrencyFilter() = default;

CurrencyFilter& CurrencyFilter::Attach(QLineEdit& line, AmountSign sign,
                                       std::shared_ptr<Utils> utils) {
    delete Of(line);
    return *new CurrencyFilter(line, sign, std::move(utils));
}

CurrencyFilter* CurrencyFilter::Of(const QLineEdit& line) {
    return line.findChild<CurrencyFilter*>(QString(), Qt::FindDirectChildrenOnly);
}

QLineEdit* CurrencyFilter::Line() const {
    return qobject_cast<QLineEdit*>(parent());
}

bool CurrencyFilter::eventFilter(QObject* watched, QEvent* event) {
    const QPointer<QObject> alive(watched);
    bool taken = false;
    GuardEvent(u"CurrencyField", [&] {
        QLineEdit* const line = Line();
        taken = line != nullptr && Filter(*line, *event);
    });
    return taken || alive == nullptr;
}

bool CurrencyFilter::Filter(QLineEdit& line, QEvent& event) {
    switch (event.type()) {
        case QEvent::FocusIn:
            GetFocus(line, static_cast<QFocusEvent&>(event).reason());
            return false;
        case QEvent::KeyPress:
            return PressKey(line, static_cast<QKeyEvent&>(event));
        case QEvent::MouseButtonRelease:
            if (std::exchange(clickSelects_, false) && !line.hasSelectedText() &&
                static_cast<QMouseEvent&>(event).button() == Qt::LeftButton) {
                QMetaObject::invokeMethod(&line, &QLineEdit::selectAll, Qt::QueuedConnection);
            }
            return false;
        case QEvent::Drop:
            Drop(line, static_cast<QDropEvent&>(event));
            return true;
        case QEvent::MouseButtonPress:
            if (line.hasFocus()) Enter(line);
            return false;
        case QEvent::InputMethod:
            // Qt would write into a locked field.
            if (line.isReadOnly()) {
                event.ignore();
                return true;
            }
            return OpenForInput(line);
        case QEvent::ContextMenu:
            // Without the focus the field would never be left.
            return !HasFocusInWindow(line) || OpenForInput(line);
        case QEvent::Hide:
            isUnasked_ = false;
            return false;
        default:
            return false;
    }
}

/// A field that was left with the focus stays left when its window comes back.
void CurrencyFilter::GetFocus(QLineEdit& line, Qt::FocusReason reason) {
    clickSelects_ = reason == Qt::MouseFocusReason;
    CurrencyWatch::OfApplication().Add(*this);
    if (isLeft_ && EditingGoesOn(reason)) {
        line.selectAll();
    } else {
        Enter(line);
    }
}

/// A text is about to be put in: the field shows the bare number. True when the field is gone.
bool CurrencyFilter::OpenForInput(QLineEdit& line) {
    const QPointer<CurrencyFilter> self(this);
    Enter(line);
    if (self != nullptr) MakeBare(line);
    return self == nullptr;
}

bool CurrencyFilter::PressKey(QLineEdit& line, const QKeyEvent& event) {
    if (IsPassing(event)) return false;
    if (IsEnter(event)) return CommitsBeforeEnter(line);
    if (OpenForInput(line)) return true;
    if (event.matches(QKeySequence::Paste)) {
        InsertInto(line, QApplication::clipboard()->text(), sign_);
        return true;
    }
    const char16_t letter = AmountCharacterOf(event);
    return letter != 0 && TypeInto(line, letter, events_, sign_);
}

/// A drop into a field that is not edited replaces its amount.
void CurrencyFilter::Drop(QLineEdit& line, QDropEvent& event) {
    const QPointer<CurrencyFilter> self(this);
    const QString text = event.mimeData()->text();
    const QPoint place = event.position().toPoint();
    event.setDropAction(Qt::IgnoreAction);
    event.ignore();
    if (line.isReadOnly() || event.source() == &line) return;
    const bool wasEditing = editing_;
    line.setFocus(Qt::OtherFocusReason);
    if (self == nullptr || !HasFocusInWindow(line) || OpenForInput(line)) return;
    if (wasEditing) line.setCursorPosition(line.cursorPositionAt(place));
    if (!InsertInto(line, text, sign_)) return;
    event.setDropAction(Qt::CopyAction);
    event.accept();
}

void CurrencyFilter::Enter(QLineEdit& line) {
    if (editing_ || IsAnyFieldBeingLeft()) return;
    ShowAgain();
    editing_ = true;
    isLeft_ = isUnasked_ = false;
    wasLocked_ = line.isReadOnly();
    CurrencyWatch::OfApplication().Add(*this);

    const std::shared_ptr<TextField> field = CopyOf(line);
    const bool isReadable = BareAmount(line.text(), AmountSign::Signed).has_value();
    field->Locked(wasLocked_ || !isReadable);
    events_.Enter(field);
    entered_ = ToQString(field->Text());
    const QPointer<QLineEdit> alive(&line);
    if (!wasLocked_) Write(line, entered_);
    if (alive != nullptr) Select(line, field->SelStart(), field->SelLength());
}

/// An amount that the program has set while the user types becomes a bare number at the next key.
void CurrencyFilter::MakeBare(QLineEdit& line) {
    const BareSelection bare = BareSelectionOf(line);
    const QString text = line.text();
    if (line.isReadOnly() || bare.text == text) return;
    if (entered_ == text) entered_ = bare.text;
    const QPointer<QLineEdit> alive(&line);
    Write(line, bare.text);
    if (alive != nullptr) Select(line, bare.start, bare.length);
}

void CurrencyFilter::Write(QLineEdit& line, const QString& text) {
    const QPointer<CurrencyFilter> self(this);
    isWriting_ = true;
    const auto written = qScopeGuard([&] {
        if (self != nullptr) isWriting_ = false;
    });
    SetText(line, text);
}

QString CurrencyFilter::TextShown(const QString& text) const {
    const std::optional<std::u16string> shown = ShownAmount(text, sign_);
    return shown ? ToQString(*shown) : text;
}

/// A field being edited keeps a text as it was set until the next key.
QString CurrencyFilter::TextGiven(const QString& text) {
    if (isWriting_ || (isHandedBack_ && text == given_)) return text;
    if (editing_) {
        if (text != entered_) given_ = entered_ = text;
        return text;
    }
    isHandedBack_ = false;
    const QString shown = TextShown(text);
    const bool isShownAlready = shown == text && !given_.isNull() && TextShown(given_) == text;
    if (!isShownAlready) given_ = text;
    return shown;
}

}  // namespace halvek
