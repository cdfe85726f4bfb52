// SPDX-License-Identifier: MIT
#include <halvekutils/core/Session.h>
#include <halvekutils/platform/Beep.h>
#include <halvekutils/platform/TextField.h>
#include <halvekutils/qt/QtText.h>
#include <halvekutils/qt/currency/CurrencyFilter.h>
#include <halvekutils/qt/currency/CurrencyKeyEvent.h>
#include <halvekutils/qt/currency/CurrencyValidator.h>
#include <halvekutils/qt/helpers/EventGuard.h>
#include <halvekutils/qt/helpers/Keys.h>
#include <halvekutils/qt/helpers/LineEditCopy.h>

#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPushButton>
#include <QScopedValueRollback>

#include <algorithm>
#include <cstdint>
#include <utility>

namespace halvek {

namespace {

constexpr int kRoom = 64;

/// True while a field is being left: what its message does to the focus concerns no field.
bool leaving = false;

bool EditingGoesOn(Qt::FocusReason reason) {
    return reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason ||
           reason == Qt::MenuBarFocusReason;
}

/// A readable amount in the form that no rule about digits without a point can misread.
QString ForValidation(const QString& text) {
    std::optional<std::u16string> bare = BareAmount(text, AmountSign::Signed);
    if (!bare) return text;
    const bool hasPoint = bare->find(u'.') != bare->npos;
    if (!hasPoint && IsTypedAmount(*bare, AmountSign::Signed)) *bare += u'.';
    return ToQString(*bare);
}

/// The line edit of a filter; null once it is being destroyed.
QLineEdit* LineOf(const CurrencyFilter& field) {
    return qobject_cast<QLineEdit*>(field.parent());
}

/// Runs what a filter does on an event; true when the receiver must not see the event, or cannot.
template <class Body>
bool TakesEvent(QObject& receiver, const CurrencyFilter& field, const Body& body) {
    const QPointer<QObject> alive(&receiver);
    bool taken = false;
    GuardEvent(u"CurrencyField", [&] {
        QLineEdit* const line = LineOf(field);
        taken = line != nullptr && body(*line);
    });
    return taken || alive == nullptr;
}

}  // namespace

/// Watches the application while the field is edited.
class CurrencyFilter::ApplicationFilter : public QObject {
  public:
    explicit ApplicationFilter(CurrencyFilter& field) : field_(field) {}

    bool eventFilter(QObject* watched, QEvent* event) override {
        return watched != field_.parent() && TakesEvent(*watched, field_, [&](QLineEdit& line) {
                   return field_.FilterApplication(line, *watched, *event);
               });
    }

  private:
    CurrencyFilter& field_;
};

CurrencyFilter::CurrencyFilter(QLineEdit& line, AmountSign sign, std::shared_ptr<Utils> utils)
    : QObject(&line),
      sign_(sign),
      events_(sign, TheSession()),
      utils_(std::move(utils)),
      applicationFilter_(std::make_unique<ApplicationFilter>(*this)) {
    line.setInputMask(QString());
    line.setMaxLength(std::max(line.maxLength(), kRoom));
    line.setText(line.text());  // what was undoable before is not judged
    line.setValidator(new CurrencyValidator(line, sign, this));
    line.installEventFilter(this);
    connect(qApp, &QApplication::focusChanged, this,
            [this](const QWidget*, const QWidget* now) { FocusMoved(now); });
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

bool CurrencyFilter::eventFilter(QObject* watched, QEvent* event) {
    return TakesEvent(*watched, *this, [&](QLineEdit& line) { return Filter(line, *event); });
}

bool CurrencyFilter::Filter(QLineEdit& line, QEvent& event) {
    const QPointer<CurrencyFilter> self(this);
    switch (event.type()) {
        case QEvent::FocusIn:
            clickSelects_ = static_cast<QFocusEvent&>(event).reason() == Qt::MouseFocusReason;
            Enter(line);
            return false;
        case QEvent::FocusOut:
            return LoseFocus(line, static_cast<QFocusEvent&>(event).reason());
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
        case QEvent::ContextMenu:
        case QEvent::InputMethod:
            Enter(line);
            if (self != nullptr) MakeBare(line);
            return false;
        default:
            return false;
    }
}

/// A button that is pressed without taking the focus validates too; the click that moved the focus
/// does nothing when the field keeps it.
bool CurrencyFilter::FilterApplication(QLineEdit& line, const QObject& watched,
                                       const QEvent& event) {
    switch (event.type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
            if (watched.isWidgetType() && std::exchange(refusesPress_, false)) return true;
            break;
        case QEvent::Shortcut:
            break;
        default:
            return false;
    }
    const auto* const button = qobject_cast<const QPushButton*>(&watched);
    const bool isPressed =
        button != nullptr && button->isEnabled() && button->window() == line.window();
    return isPressed && !Leave(line);
}

bool CurrencyFilter::PressKey(QLineEdit& line, const QKeyEvent& event) {
    if (IsPassing(event)) return false;
    if (IsEnter(event)) return !Leave(line);
    const QPointer<CurrencyFilter> self(this);
    Enter(line);
    if (self != nullptr) MakeBare(line);
    if (self == nullptr) return true;
    if (event.matches(QKeySequence::Paste)) {
        Insert(line, QApplication::clipboard()->text());
        return true;
    }
    const char16_t letter = AmountCharacterOf(event);
    return letter != 0 && Type(line, letter);
}

/// True when the line edit must not see the key.
bool CurrencyFilter::Type(QLineEdit& line, char16_t letter) {
    const std::shared_ptr<TextField> field = CopyOf(line);
    const std::u16string before = field->Text();
    auto key = static_cast<std::int16_t>(letter);
    events_.PressKey(field, key);
    if (key == kBackspace) return false;
    if (key != 0) {
        const std::int32_t start = field->SelStart();
        const auto length = static_cast<std::size_t>(field->SelLength());
        field->Text(field->Text().replace(static_cast<std::size_t>(start), length, 1, letter));
        field->SelStart(start + 1);
    }
    const std::u16string typed = field->Text();
    if (typed != before) {
        events_.Change(field);
        if (!IsTypedAmount(field->Text(), sign_)) {
            Beep();
            return true;
        }
    }
    const QPointer<QLineEdit> alive(&line);
    if (field->Text() != before) Edit(line, ToQString(field->Text()));
    if (alive != nullptr) Select(line, field->SelStart(), field->SelLength());
    return true;
}

/// Puts a text in the place of the selection; false when what would result is refused.
bool CurrencyFilter::Insert(QLineEdit& line, const QString& piece) {
    if (line.isReadOnly()) return false;
    const int start = CaretOf(line);
    const QString result = line.text().replace(start, line.selectionLength(), piece);
    const std::optional<std::u16string> typed = TypedAmount(result, sign_);
    if (!typed) {
        Beep();
        return false;
    }
    const QString text = ToQString(*typed);
    const auto behind = text == result ? start + piece.size() : text.size();
    const QPointer<QLineEdit> alive(&line);
    if (text != line.text()) Edit(line, text);
    if (alive != nullptr) line.setCursorPosition(static_cast<int>(behind));
    return true;
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
    if (self == nullptr || line.window()->focusWidget() != &line) return;
    Enter(line);
    if (self != nullptr) MakeBare(line);
    if (self == nullptr) return;
    if (wasEditing) line.setCursorPosition(line.cursorPositionAt(place));
    if (!Insert(line, text)) return;
    event.setDropAction(Qt::CopyAction);
    event.accept();
}

/// The focus may move while the window is inactive, without a word to the field.
void CurrencyFilter::FocusMoved(const QWidget* now) {
    GuardEvent(u"CurrencyField", [&] {
        QLineEdit* const line = LineOf(*this);
        if (!editing_ || leaving || line == nullptr || now == nullptr || now == line) return;
        if (now->window() == line->window()) LoseFocus(*line, Qt::OtherFocusReason);
    });
}

/// True when the field keeps the focus.
bool CurrencyFilter::LoseFocus(QLineEdit& line, Qt::FocusReason reason) {
    const QPointer<CurrencyFilter> self(this);
    if (EditingGoesOn(reason) || Leave(line)) return false;
    if (self == nullptr) return true;
    if (!line.isVisible() || !line.isEnabled()) {
        EndEditing();
        return false;
    }
    const QScopedValueRollback keepsFocus(leaving, true);
    line.setFocus(Qt::OtherFocusReason);
    if (self != nullptr && reason == Qt::MouseFocusReason) {
        refusesPress_ = true;
        const auto forget = [this] { refusesPress_ = false; };
        QMetaObject::invokeMethod(this, forget, Qt::QueuedConnection);
    }
    return true;
}

void CurrencyFilter::Enter(QLineEdit& line) {
    if (editing_ || leaving) return;
    editing_ = true;
    wasLocked_ = line.isReadOnly();
    qApp->installEventFilter(applicationFilter_.get());

    const std::shared_ptr<TextField> field = CopyOf(line);
    const bool isReadable = BareAmount(line.text(), AmountSign::Signed).has_value();
    field->Locked(wasLocked_ || !isReadable);
    events_.Enter(field);
    const QPointer<QLineEdit> alive(&line);
    if (!wasLocked_) SetText(line, ToQString(field->Text()));
    if (alive != nullptr) Select(line, field->SelStart(), field->SelLength());
}

/// Validates what was edited; false when the field must not be left.
bool CurrencyFilter::Leave(QLineEdit& line) {
    if (!editing_ || leaving) return true;
    const QPointer<CurrencyFilter> self(this);
    const bool mayLeave = MayLeave(line);
    if (self != nullptr && mayLeave) EndEditing();
    return mayLeave || self == nullptr;
}

bool CurrencyFilter::MayLeave(QLineEdit& line) {
    if (wasLocked_ && line.isReadOnly()) return true;
    const QScopedValueRollback isLeaving(leaving, true);
    const QPointer<CurrencyFilter> self(this);
    const auto field = std::make_shared<TextField>(ForValidation(line.text()));
    bool cancel = false;
    events_.Leave(field, cancel);
    const QString validated = ToQString(field->Text());
    if (line.text() != validated) SetText(line, validated);
    if (cancel || self == nullptr || range_.from == nullptr) return !cancel;

    // The message may end the filter.
    const Range range = range_;
    const CurrencyEvents events = events_;
    events.CheckRange(field, range.from->text(), validated, range.lblMin, range.lblMax, cancel);
    if (cancel && self != nullptr) SetText(line, ToQString(field->Text()));
    return !cancel;
}

void CurrencyFilter::EndEditing() {
    editing_ = false;
    refusesPress_ = false;
    qApp->removeEventFilter(applicationFilter_.get());
}

/// An amount that the program has set meanwhile, "$1,234.50" say, becomes a bare number again
/// before the user goes on.
void CurrencyFilter::MakeBare(QLineEdit& line) {
    const QString text = line.text();
    if (line.isReadOnly() || IsTypedAmount(text, AmountSign::Signed)) return;
    const std::optional<std::u16string> bare = BareAmount(text, AmountSign::Signed);
    if (!bare) return;
    const auto bareLengthOf = [&](int length) {
        const auto isDropped = [](QChar c) { return QStringLiteral("$, \t)").contains(c); };
        return length - static_cast<int>(std::ranges::count_if(text.left(length), isDropped));
    };
    const int start = bareLengthOf(CaretOf(line));
    const int end = bareLengthOf(CaretOf(line) + line.selectionLength());
    const QPointer<QLineEdit> alive(&line);
    SetText(line, ToQString(*bare));
    if (alive != nullptr) Select(line, start, end - start);
}

}  // namespace halvek
