// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractNativeEventFilter>
#include <QRect>

#include <cstdint>

class QScreen;
class QWidget;

// What the X server knows and Qt does not say. Off X11 the functions know nothing.

namespace halvek {

/// True when a window of another program has the keyboard.
bool IsOtherProgramActive();

/// True when the X server sends what is typed to this window. False on other platforms.
bool HasKeyboard(const QWidget& window);

/// Lets Qt know that this window has the keyboard, where it has missed that.
void TellOfKeyboard(const QWidget& window);

/// The part of a screen that task bars and panels leave free, in logical pixels; the whole screen
/// where the window manager does not say.
QRect WorkAreaOf(const QScreen& screen);

/// Qt asks the window manager to activate every modal window that it shows, hears its own request
/// and takes it for granted. This keeps the request for one window from it; what really happens
/// comes as another event.
class UnheardActivation : public QAbstractNativeEventFilter {
  public:
    explicit UnheardActivation(const QWidget& window);
    bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override;

  private:
    std::uint32_t window_;
    std::uint32_t request_ = 0;  ///< an atom
};

}  // namespace halvek
