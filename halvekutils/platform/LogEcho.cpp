// SPDX-License-Identifier: MIT
#include <halvekutils/platform/LogEcho.h>

namespace halvek {

namespace {

LogEcho installedEcho = nullptr;
thread_local bool echoing = false;

/// While it lives, this thread echoes nothing.
struct Echoing {
    Echoing() { echoing = true; }
    ~Echoing() { echoing = false; }
};

}  // namespace

void InstallLogEcho(LogEcho echo) noexcept {
    installedEcho = echo;
}

void EchoLogLine(TextIn line, bool debugMode) {
    if (installedEcho == nullptr || echoing) return;
    const Echoing guard;
    installedEcho(line, debugMode);
}

}  // namespace halvek
