// SPDX-License-Identifier: MIT
#include "Conversation.h"

#include "Calls.h"
#include "Record.h"
#include "Seen.h"
#include "StageWindow.h"

#include <QTest>

#include <xcb/xcb.h>

#include <algorithm>
#include <cstdlib>
#include <utility>

using halvek::Utils;

namespace {

constexpr int kCalmRounds = 3;
constexpr int kPause = 2;  // in milliseconds, between two looks

// After so many looks an effect never comes. A busy machine makes fewer of them in a second.
constexpr int kLooks = 10'000;

// After so many the pointer is beside what it was moved to, which has moved, too.
constexpr int kLooksForPointer = 100;

// A dialog may move while it opens, but not for as long as a hand takes to get there.
constexpr int kReach = 130;

// How far apart the clicks of a double click may be, in milliseconds; the slow hand is for a player
// on a busy machine.
constexpr int kQuickHand = 400;
constexpr int kSlowHand = 20'000;

/// A button released on the shared pointer, by the input extension, which names the device behind
/// the type; the device behind the pointer reports the release, too.
bool IsClick(const xcb_ge_generic_event_t& event) {
    constexpr std::uint16_t kButtonRelease = 5;
    constexpr std::uint8_t kSharedPointer = 2;
    return event.event_type == kButtonRelease && event.pad0[0] == kSharedPointer;
}

/// Whether a click would reach this program. The frame of a window that has just been closed stays
/// until the window manager takes it away.
bool PointerIsOverHost() {
    auto* const display = qApp->nativeInterface<QNativeInterface::QX11Application>()->connection();
    std::uint32_t window = xcb_setup_roots_iterator(xcb_get_setup(display)).data->root;
    for (std::uint32_t child = window; child != 0;) {
        window = child;
        auto* const reply =
            xcb_query_pointer_reply(display, xcb_query_pointer(display, window), nullptr);
        child = reply == nullptr ? 0 : reply->child;
        std::free(reply);
    }
    return std::ranges::any_of(QGuiApplication::allWindows(), [window](const QWindow* own) {
        return own->handle() != nullptr && own->winId() == window;
    });
}

/// "X,Y" or "" for the usual place
QPoint PlaceFor(const QString& place) {
    constexpr QPoint kUsual(40, 40);
    if (place.isEmpty()) return kUsual;
    return {place.section(',', 0, 0).toInt(), place.section(',', 1).toInt()};
}

}  // namespace

Conversation::Conversation() {
    marked_.create();
    qApp->installNativeEventFilter(this);
    Record::Answer("marks " + QString::number(marked_.winId()));
    input_.open(0, QIODevice::ReadOnly | QIODevice::Unbuffered);
    auto* const notifier = new QSocketNotifier(0, QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this] { Listen(); });
    check_.setInterval(0);
    connect(&check_, &QTimer::timeout, this, [this] { Check(); });
}

void Conversation::Listen() {
    const QByteArray line = input_.readLine();
    if (line.isEmpty()) std::exit(0);
    Answer(QString::fromUtf8(line).chopped(1));
}

void Conversation::Answer(const QString& line) {
    const QString word = line.section(' ', 0, 0);
    const QString rest = line.section(' ', 1);
    if (word == "new") return Renew(rest);
    if (word == "where") return AnswerWhere(rest);
    if (word == "read") Record::Got(rest, TextSeen(*Front(window_.get()), rest));
    if (word == "picture") Front(window_.get())->grab().save(rest);
    if (word == "front") return Record::Answer(QString::number(Front(window_.get())->winId()));
    if (auto* const desk = dynamic_cast<Desk*>(window_.get()); desk && word == "load")
        desk->Load(rest.section(' ', 0, 0), rest.section(' ', 1));
    if (word == "clipboard") QApplication::clipboard()->setText(QString(rest).replace(';', "\r\n"));
    if (word == "locale") QLocale::setDefault(QLocale(rest));
    if (word == "slow-hand") QApplication::setDoubleClickInterval(kSlowHand);
    if (word == "await") {
        marksAwaited_ = rest.section(' ', 0, 0).toInt();
        clicksAwaited_ = rest.section(' ', 1, 1).toInt();
        pointerAwaited_ = rest.section(' ', 2, 2) == "pointer";
        controlAwaited_ = rest.section(' ', 3);
        isAsked_ = true;
        looks_ = 0;
        check_.start();
    }
}

void Conversation::Renew(const QString& window) {
    // A failed story may have left a dialog open, whose loop must end first.
    if (QWidget* const left = Front(nullptr)) {
        left->close();
        QTimer::singleShot(0, this, [this, window] { Renew(window); });
        return;
    }
    QLocale::setDefault(QLocale::c());
    QApplication::setDoubleClickInterval(kQuickHand);
    window_.reset();
    StartSession(QDir::homePath() + "/Stage.log", false);
    if (window.startsWith("stage"))
        window_ = std::make_unique<StageWindow>();
    else
        window_ = std::make_unique<Desk>(Utils::CurrentUtils());
    window_->move(PlaceFor(window.section(' ', 1)));
    window_->show();
    if (!QTest::qWaitForWindowExposed(window_.get())) qFatal("a window is never shown");
    Record::Answer("window " + QString::number(window_->winId()));
}

void Conversation::AnswerWhere(const QString& name) const {
    const auto place = PlaceOf(*Front(window_.get()), name);
    Record::Answer(place ? QString("at %1 %2").arg(place->x()).arg(place->y()) : "nowhere");
}

bool Conversation::nativeEventFilter(const QByteArray&, void* message, qintptr*) {
    const auto* const event = static_cast<const xcb_generic_event_t*>(message);
    const int kind = event->response_type & 0x7F;
    if (kind == XCB_PROPERTY_NOTIFY) {
        const auto& change = *static_cast<const xcb_property_notify_event_t*>(message);
        marksSeen_ += change.window == marked_.winId() && change.atom == XCB_ATOM_WM_ICON_NAME;
    } else if (kind == XCB_BUTTON_RELEASE) {
        ++clicksSeen_;
    } else if (kind == XCB_GE_GENERIC) {
        clicksSeen_ += IsClick(*static_cast<const xcb_ge_generic_event_t*>(message));
    }
    calm_ = 0;
    return false;
}

/// Called whenever the event loop has nothing else to do.
void Conversation::Check() {
    const bool isThere = marksSeen_ >= marksAwaited_ && clicksSeen_ >= clicksAwaited_;
    const bool isOver = !pointerAwaited_ || IsPointerThere();
    const bool isSettled = isThere && IsSettled();
    if (!isOver || !isSettled) calm_ = 0;
    check_.setInterval(calm_ == 0 ? kPause : 0);
    const bool isDone = calm_++ >= kCalmRounds;
    const bool isMissed = isSettled && !isOver && looks_ > kLooksForPointer;
    if (!isAsked_ || (!isDone && !isMissed && ++looks_ < kLooks)) return;
    isAsked_ = false;
    check_.stop();
    Record::Answer(isDone ? "done" : isMissed ? "missed" : "stuck: " + State());
}

bool Conversation::IsPointerThere() {
    QWidget* const front = Front(window_.get());
    if (std::exchange(front_, front) != front) sinceInFront_.start();
    const bool isThere =
        controlAwaited_.isEmpty() || PlaceOf(*front, controlAwaited_) == QCursor::pos();
    const bool mayMove = front != window_.get() && !sinceInFront_.hasExpired(kReach);
    return !mayMove && isThere && PointerIsOverHost();
}

bool Conversation::IsSettled() const {
    if (QApplication::activePopupWidget() != nullptr) return true;
    const QWindow* const front = Front(window_.get())->windowHandle();
    return front != nullptr && front->isExposed() && QGuiApplication::focusWindow() == front;
}

QString Conversation::State() const {
    const QWindow* const focus = QGuiApplication::focusWindow();
    return QString("%1 of %2 marks, %3 of %4 clicks, the keyboard is with %5, in front is %6")
        .arg(marksSeen_)
        .arg(marksAwaited_)
        .arg(clicksSeen_)
        .arg(clicksAwaited_)
        .arg(focus ? focus->objectName() : "nobody")
        .arg(Front(window_.get())->objectName());
}
