// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/currency/AmountText.h>
#include <halvekutils/platform/Controls.h>

namespace halvek {

// What a currency field does on its other events; faults are thrown. See the members of Utils.

/// Cuts what follows the point to two characters.
void CutDecimals(TextControl& ctr, AmountSign sign);

/// Takes the marks of a shown amount off, unless the field is locked, and selects the text.
void EnterCurrencyField(TextControl& ctr);

/// Shows the amount formatted. Throws TypeMismatch when the text is none.
void LeaveCurrencyField(TextControl& ctr, bool& cancel, AmountSign sign);

}  // namespace halvek
