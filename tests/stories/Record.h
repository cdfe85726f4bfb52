// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// What the host gets, a line each, as the player of the stories reads it.
class Record {
  public:
    /// Adds what came of the user's doing: "calculator 8".
    static void Got(const QString& what, const QString& value = {});

    /// Answers the player.
    static void Answer(const QString& line);
};
