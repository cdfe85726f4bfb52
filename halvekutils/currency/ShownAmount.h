// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Internal.h>
#include <halvekutils/base/TextIn.h>
#include <halvekutils/currency/AmountText.h>

#include <optional>
#include <string>

namespace halvek {

/// Rewrites a readable amount so that no rule about digits without a point misreads it. A text
/// without a digit (a lone point, say) becomes empty; any other text stays as it is.
HALVEK_INTERNAL std::u16string ForLeaving(TextIn text);

/// The amount as a field shows it once it is left: "$1,234.50". Nothing for an empty text or a text
/// that is not an amount.
HALVEK_INTERNAL std::optional<std::u16string> ShownAmount(TextIn text, AmountSign sign);

}  // namespace halvek
