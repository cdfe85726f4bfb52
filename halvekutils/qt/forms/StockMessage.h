// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/TextIn.h>
#include <halvekutils/platform/Desktop.h>

#include <memory>

namespace halvek {

class MessageBox;

/// A message of the library's own, with an OK button. It needs no session: an unwritable log may be
/// reported before there is one.
std::shared_ptr<MessageBox> MakeStockMessage(TextIn text, StockIcon icon, TextIn title,
                                             const Desktop& desktop);

}  // namespace halvek
