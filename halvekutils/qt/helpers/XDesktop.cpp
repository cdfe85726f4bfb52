// SPDX-License-Identifier: MIT
#include <halvekutils/qt/helpers/XDesktop.h>

#include <QByteArray>
#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

#include <xcb/xcb.h>

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <vector>

namespace halvek {

namespace {

struct Free {
    void operator()(void* reply) const { std::free(reply); }
};
template <class Reply>
using ReplyOf = std::unique_ptr<Reply, Free>;

/// Null on other platforms.
xcb_connection_t* Connection() {
    const auto* const x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return x11 == nullptr ? nullptr : x11->connection();
}

xcb_atom_t AtomOf(xcb_connection_t* display, const QByteArray& name) {
    const ReplyOf<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(
        display,
        xcb_intern_atom(display, false, static_cast<std::uint16_t>(name.size()), name.constData()),
        nullptr));
    return reply == nullptr ? static_cast<xcb_atom_t>(XCB_ATOM_NONE) : reply->atom;
}

constexpr char kActiveWindow[] = "_NET_ACTIVE_WINDOW";

/// The numbers of a property of the root window; none without it.
std::vector<std::uint32_t> RootNumbers(xcb_connection_t* display, const QByteArray& name) {
    constexpr std::uint32_t kMaxNumbers = 1024;
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(display)).data->root;
    const ReplyOf<xcb_get_property_reply_t> value(
        xcb_get_property_reply(display,
                               xcb_get_property(display, false, root, AtomOf(display, name),
                                                XCB_GET_PROPERTY_TYPE_ANY, 0, kMaxNumbers),
                               nullptr));
    if (value == nullptr || value->format != 32) return {};
    const auto* const first =
        static_cast<const std::uint32_t*>(xcb_get_property_value(value.get()));
    return {first, first + value->value_len};
}

std::uint32_t FirstOf(const std::vector<std::uint32_t>& numbers) {
    return numbers.empty() ? 0 : numbers.front();
}

/// The rectangle at a position of a list of them; empty behind the last.
QRect RectAt(const std::vector<std::uint32_t>& numbers, std::size_t position) {
    if (numbers.size() / 4 <= position) return {};
    const std::uint32_t* const place = &numbers[position * 4];
    return {static_cast<int>(place[0]), static_cast<int>(place[1]), static_cast<int>(place[2]),
            static_cast<int>(place[3])};
}

int AreaOf(const QRect& rect) {
    return rect.isEmpty() ? 0 : rect.width() * rect.height();
}

/// In the window manager's pixels. The first list has an area a screen, the second one a desktop,
/// over all screens.
QRect AreaIn(xcb_connection_t* display, const QRect& screen) {
    const std::uint32_t desktop = FirstOf(RootNumbers(display, "_NET_CURRENT_DESKTOP"));
    const std::vector<std::uint32_t> each =
        RootNumbers(display, "_GTK_WORKAREAS_D" + QByteArray::number(desktop));
    QRect largest;
    for (std::size_t i = 0; i < each.size() / 4; ++i) {
        const QRect here = RectAt(each, i) & screen;
        if (AreaOf(here) > AreaOf(largest)) largest = here;
    }
    if (!largest.isEmpty()) return largest;
    const std::vector<std::uint32_t> all = RootNumbers(display, "_NET_WORKAREA");
    const QRect ofDesktop = RectAt(all, desktop);
    return (ofDesktop.isEmpty() ? RectAt(all, 0) : ofDesktop) & screen;
}

}  // namespace

bool IsOtherProgramActive() {
    xcb_connection_t* const display = Connection();
    if (display == nullptr) return false;
    const std::uint32_t active = FirstOf(RootNumbers(display, kActiveWindow));
    const xcb_setup_t& setup = *xcb_get_setup(display);
    // A window's number tells whose it is, even after the window is gone.
    return active != 0 && (active & ~setup.resource_id_mask) != setup.resource_id_base;
}

bool HasKeyboard(const QWidget& window) {
    xcb_connection_t* const display = Connection();
    if (display == nullptr) return false;
    const ReplyOf<xcb_get_input_focus_reply_t> reply(
        xcb_get_input_focus_reply(display, xcb_get_input_focus(display), nullptr));
    return reply != nullptr && reply->focus == window.winId();
}

void TellOfKeyboard(const QWidget& window) {
    xcb_connection_t* const display = Connection();
    if (display == nullptr) return;
    xcb_client_message_event_t message = {};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = static_cast<xcb_window_t>(window.winId());
    message.type = AtomOf(display, kActiveWindow);
    xcb_send_event(display, false, message.window, XCB_EVENT_MASK_NO_EVENT,
                   reinterpret_cast<const char*>(&message));
    xcb_flush(display);
}

QRect WorkAreaOf(const QScreen& screen) {
    const QRect whole = screen.geometry();
    xcb_connection_t* const display = Connection();
    if (display == nullptr) return whole;
    // Screens keep their corners whatever the scale; only lengths are scaled.
    const double scale = screen.devicePixelRatio();
    const QRect area = AreaIn(display, {whole.topLeft(), (QSizeF(whole.size()) * scale).toSize()});
    if (area.isEmpty()) return whole;
    const QPointF from = QPointF(area.topLeft() - whole.topLeft()) / scale;
    const QPointF to = QPointF(area.bottomRight() + QPoint(1, 1) - whole.topLeft()) / scale;
    const QPoint first(static_cast<int>(std::ceil(from.x())),
                       static_cast<int>(std::ceil(from.y())));
    const QPoint end(static_cast<int>(std::floor(to.x())), static_cast<int>(std::floor(to.y())));
    return {whole.topLeft() + first, whole.topLeft() + end - QPoint(1, 1)};
}

UnheardActivation::UnheardActivation(const QWidget& window)
    : window_(static_cast<std::uint32_t>(window.winId())) {
    xcb_connection_t* const display = Connection();
    if (display == nullptr) return;
    request_ = AtomOf(display, kActiveWindow);
    qGuiApp->installNativeEventFilter(this);
}

bool UnheardActivation::nativeEventFilter(const QByteArray&, void* message, qintptr*) {
    constexpr std::uint8_t kKind = 0x7F;
    const auto& event = *static_cast<const xcb_client_message_event_t*>(message);
    return (event.response_type & kKind) == XCB_CLIENT_MESSAGE && event.type == request_ &&
           event.window == window_;
}

}  // namespace halvek
