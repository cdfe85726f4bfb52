// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/TextIn.h>

namespace halvek {

struct ComponentState;

/// Appends one line to the error log that the state names, rotating the log first when it has
/// reached one mebibyte.
///
/// The line is the local date and time, the login name and the message, parted by tabs and ended by
/// CR LF, in the bytes of Windows-1252. Never throws: a failure beeps, shows a message in debug
/// mode and loses this line only.
void WriteErrorLog(ComponentState& state, TextIn message) noexcept;

}  // namespace halvek
