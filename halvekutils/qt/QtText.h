// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Export.h>
#include <halvekutils/base/TextIn.h>

#include <QByteArray>
#include <QString>

#include <string>

namespace halvek {

/// The library's texts as a QString. The other way needs no call: a QString passes as a TextIn.
HALVEK_EXPORT QString ToQString(TextIn text);

/// The same, escaped for a tool tip, which would otherwise read markup in it.
HALVEK_EXPORT QString ToToolTip(TextIn text);

/// The same, shown literally in a window's title bar, where "[*]" would be a placeholder. Cut at
/// 2000 characters, more than any screen shows.
HALVEK_EXPORT QString ToWindowTitle(TextIn text);

/// The same, shown literally on a button or menu, where "&" would mark an accelerator.
HALVEK_EXPORT QString ToCaption(TextIn text);

/// A text from the bytes in which the practice's server sends it, Windows-1252: with its curly
/// quotes and the five codes of 128 to 159 that other Latin alphabets lack. Every byte has a
/// character.
///
/// @code{.cpp}
/// utils->BuildCodesCollection(FromServer(reply->readAll()));
/// @endcode
HALVEK_EXPORT QString FromServer(const QByteArray& bytes);

/// The bytes in which the practice's server reads a text. A character that Windows-1252 lacks
/// becomes
/// "?".
HALVEK_EXPORT QByteArray ToServer(TextIn text);

}  // namespace halvek
