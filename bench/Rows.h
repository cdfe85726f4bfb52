// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/core/Utils.h>

#include <functional>
#include <string>
#include <vector>

namespace bench {

using Work = std::function<void()>;

/// The same work done in three ways on one input; a missing way is not measured.
struct Case {
    Work floor;  ///< the least that any implementation has to do
    Work ours;
    Work peer;  ///< what a host's programmer would use instead
};

/// A line of the table.
struct Row {
    std::string work;
    std::string floor;
    double atMost = 0;  ///< how many times the floor's time we may take; 0 when it is only reported
    std::string peer;
    double fasterBy =
        0;  ///< how many times our time the peer must take; 0 when it is only reported

    /// Makes the input, `scale` times as large as the row says: 1, and for the growth 0.1 and 10.
    std::function<Case(double scale)> prepare;
    bool grows = true;    ///< false for work whose size is fixed
    bool first = false;   ///< measured as the first such work of a process
    bool counted = true;  ///< false for what takes another way on another disk
};

using Rows = std::vector<Row>;

Rows TextRows();
Rows RefdataRows();
Rows PrefsRows();
Rows LogRows();
Rows SelectionRows();
Rows ValueRows();
Rows WindowRows();

/// The rows above that need no window, in the order of the table.
Rows RowsWithoutWindows();

/// The scale at which instructions are counted: the smallest at which the growth is measured.
constexpr double kCountedScale = 0.1;

/// The session that all rows share.
halvek::Utils& Session();

/// Keeps the optimiser from dropping a result.
void Use(const void* result);

}  // namespace bench
