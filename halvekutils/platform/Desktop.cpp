// SPDX-License-Identifier: MIT
#include <halvekutils/base/RuntimeError.h>
#include <halvekutils/platform/Beep.h>
#include <halvekutils/platform/Desktop.h>
#include <halvekutils/platform/PrinterSource.h>

#include <exception>
#include <thread>
#include <utility>

namespace halvek {

namespace {

Desktop* installedDesktop = nullptr;
std::thread::id userInterfaceThread;

}  // namespace

TextMeter::~TextMeter() = default;

Desktop* Desktop::Installed() noexcept {
    return installedDesktop;
}

Desktop* Desktop::Install(Desktop* desktop) noexcept {
    userInterfaceThread = std::this_thread::get_id();
    return std::exchange(installedDesktop, desktop);
}

bool Desktop::IsOnItsThread() noexcept {
    return installedDesktop == nullptr || userInterfaceThread == std::this_thread::get_id();
}

void Desktop::RequireItsThread() {
    if (IsOnItsThread()) return;
    throw RuntimeError(Fault::InvalidArgument, u"not the user-interface thread");
}

bool Desktop::AllowsModelessWindows() const {
    return true;
}

Rect Desktop::ScreenRect() const {
    const Size size = ScreenSize();
    return {0, 0, size.width, size.height};
}

Rect Desktop::ScreenRectAt(Point) const {
    return ScreenRect();
}

HeldKeys Desktop::KeysHeld() const {
    return {};
}

void Desktop::RemoveCloseButton(std::int32_t) {}

std::unique_ptr<PrinterSource> Desktop::Printers() {
    return nullptr;
}

void Beep() noexcept {
    if (installedDesktop == nullptr) return;
    try {
        installedDesktop->Beep();
    } catch (const std::exception&) {
        // There is nowhere to report a beep that fails.
    }
}

}  // namespace halvek
