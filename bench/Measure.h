// SPDX-License-Identifier: MIT
#pragma once

#include "Rows.h"

#include <optional>

namespace bench {

/// Median times of one call in nanoseconds of processor time.
struct Times {
    std::optional<double> floor;
    std::optional<double> ours;
    std::optional<double> peer;
};

/// Runs the three ways in turns, in random order, and takes the median of each.
Times Measure(const Case& work);

/// The exponent with which our time grows from a tenth of the size to the size, and from the size
/// to ten times the size: 1 is linear, 2 quadratic.
struct Growth {
    double toSize = 0;
    double toTenfold = 0;
};
Growth MeasureGrowth(const Row& row);

}  // namespace bench
