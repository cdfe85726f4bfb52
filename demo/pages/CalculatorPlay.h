// SPDX-License-Identifier: MIT
#pragma once

namespace frontdesk {

class CalculatorPage;
class Tour;

/// Works out amounts by keys and clicks, up to the limits of the display, and leaves the calculator
/// in every way.
void PlayCalculations(CalculatorPage& page, Tour& tour);

}  // namespace frontdesk
