// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Export.h>
#include <halvekutils/base/TextIn.h>

#include <QString>

#include <string>

namespace halvek {

/// The library's texts as a QString. The other way needs no call: a QString passes as a TextIn.
HALVEK_EXPORT QString ToQString(TextIn text);

/// The same, shown literally by a tool tip, which would read markup in it otherwise.
HALVEK_EXPORT QString ToToolTip(TextIn text);

/// The same, shown literally in a window's title bar, where "[*]" would stand for a mark. Cut at
/// 2000 characters, more than any screen shows.
HALVEK_EXPORT QString ToWindowTitle(TextIn text);

/// The same, shown literally on a button or menu, where "&" would mark an accelerator.
HALVEK_EXPORT QString ToCaption(TextIn text);

}  // namespace halvek
