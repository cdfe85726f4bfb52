// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

namespace frontdesk {

/// The colours that the client can use instead of the desktop's own.
QStringList LooksNames();

/// Gives the application, before its first window opens, Qt's Fusion style, colours that are the
/// same on every desktop and a caret that does not blink, so that pictures can be compared. Throws
/// std::runtime_error for an unknown name.
void UseLooks(const QString& name);

}  // namespace frontdesk
