// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/currency/AmountText.h>
#include <halvekutils/platform/Controls.h>

#include <cstdint>

namespace halvek {

/// Judges a key that was pressed in a currency field, before the field inserts it.
///
/// `keyAscii` becomes 0 for a key that must not be inserted; a fault, which may come from any
/// member of the control, leaves it at 0. See Utils::OnCurrencyCtrKeyPress.
void PressCurrencyKey(TextControl& ctr, std::int16_t& keyAscii, AmountSign sign);

}  // namespace halvek
