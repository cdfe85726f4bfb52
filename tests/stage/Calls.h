// SPDX-License-Identifier: MIT
#pragma once

#include <QtWidgets>

#include <functional>
#include <vector>

/// A call of the library in a state of its window that is worth seeing.
struct Call {
    QString name;   ///< as it is typed to open it
    QString legal;  ///< a regular expression for all that it may give; empty if random keys would
                    ///< take too long
    std::function<QString(QWidget& owner)> open;  ///< gives what the host gets
};

/// All calls: pictures, stories and random keys take theirs from here.
const std::vector<Call>& Calls();

/// A new session, which has the stage's colours.
/// @param errorLog  empty for the library's own
void StartSession(const QString& errorLog, bool debugMode);

/// Gives the keyboard to a window that is not modal and waits until it is closed.
void WaitUntilClosed(QWidget& window);

/// The window that the user has in front of them: a menu or dialog, else the window that
/// WaitUntilClosed waits for, else `base`.
QWidget* Front(QWidget* base);

/// A list of codes as a practice's server sends it, from the file lists.txt; empty when there is
/// none of that name.
QString ListNamed(const QString& name);
