// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// What the host gets, one event a line, for the player of the stories.
class Record {
  public:
    /// Adds the outcome of the user's acts: "cancelled", "calculator 8", "calculator nothing".
    static void Got(const QString& what);
    static void Got(const QString& what, const QString& value);

    /// Answers the player.
    static void Answer(const QString& line);
};
