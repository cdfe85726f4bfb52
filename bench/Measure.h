// SPDX-License-Identifier: MIT
#pragma once

#include "Rows.h"

#include <optional>

namespace bench {

/// Times of one call in nanoseconds of processor time; none for a way that a row lacks.
struct Times {
    std::optional<double> floor;
    std::optional<double> ours;
    std::optional<double> peer;
};

/// Runs the ways in turns, in random order, and takes the median of each.
Times Measure(const Case& work, int repetitions);

/// The time of a single call.
double MeasureOnce(const Work& work);

}  // namespace bench
