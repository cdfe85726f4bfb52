// SPDX-License-Identifier: MIT
#pragma once

namespace frontdesk {

class CalculatorPage;
class Tour;

/// Works out amounts by keys and clicks, up to the limits of the display, and closes the calculator
/// in every possible way.
void PlayCalculations(CalculatorPage& page, Tour& tour);

}  // namespace frontdesk
