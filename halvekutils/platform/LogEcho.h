// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Internal.h>
#include <halvekutils/base/TextIn.h>

namespace halvek {

/// Also gets every line of the error log. The library with windows installs one, for the terminal.
using LogEcho = void (*)(TextIn line, bool debugMode);

/// Installs the echo of the error log.
HALVEK_INTERNAL void InstallLogEcho(LogEcho echo) noexcept;

/// Passes a line to the installed echo, unless that is what writes the line: a program may log what
/// its terminal gets.
void EchoLogLine(TextIn line, bool debugMode);

}  // namespace halvek
