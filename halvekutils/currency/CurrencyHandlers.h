// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/currency/AmountText.h>
#include <halvekutils/platform/Controls.h>

namespace halvek {

// What a currency field does on its other events. These functions throw; the members of Utils
// describe them.

/// Cuts what follows the point to two characters.
void CutDecimals(TextControl& ctr, AmountSign sign);

/// Removes "$" and commas from a shown amount, unless the field is locked, and selects the text.
void EnterCurrencyField(TextControl& ctr);

/// Shows the amount formatted. Throws TypeMismatch when the text is not an amount.
void LeaveCurrencyField(TextControl& ctr, bool& cancel, AmountSign sign);

}  // namespace halvek
