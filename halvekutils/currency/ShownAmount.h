// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Internal.h>
#include <halvekutils/base/TextIn.h>
#include <halvekutils/currency/AmountText.h>

#include <optional>
#include <string>

namespace halvek {

/// A readable amount in the form that no rule about digits without a point can misread. What has no
/// digit yet, a point alone say, is no amount: the empty text. Any other text as it is.
HALVEK_INTERNAL std::u16string ForLeaving(TextIn text);

/// What a field shows of an amount once it is left, "$1,234.50". Nothing for what is no amount, and
/// for the empty text.
HALVEK_INTERNAL std::optional<std::u16string> ShownAmount(TextIn text, AmountSign sign);

}  // namespace halvek
