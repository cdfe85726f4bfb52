// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Internal.h>
#include <halvekutils/base/TextIn.h>
#include <halvekutils/currency/AmountText.h>
#include <halvekutils/platform/Controls.h>
#include <halvekutils/platform/Services.h>

#include <cstdint>
#include <memory>

namespace halvek {

/// The handlers of a currency field's events, as Utils and the fields of a Qt host call them.
///
/// No member throws: a fault goes to the log under the name of the member of Utils, see there, and
/// the control keeps the text that it has by then. A control is kept alive for the call; null is a
/// fault.
class HALVEK_INTERNAL CurrencyEvents {
  public:
    /// @param session  outlives this object
    CurrencyEvents(AmountSign sign, Services& session) : sign_(sign), session_(session) {}

    /// Judges a key; `keyAscii` becomes 0 when the control must not insert it.
    void PressKey(std::shared_ptr<TextControl> ctr, std::int16_t& keyAscii) const;
    /// Cuts what follows the point to two characters.
    void Change(std::shared_ptr<TextControl> ctr) const;
    /// Turns a shown amount into a bare number and selects it.
    void Enter(std::shared_ptr<TextControl> ctr) const;
    /// Shows the amount formatted; `cancel` becomes false for an empty field.
    void Leave(std::shared_ptr<TextControl> ctr, bool& cancel) const;
    /// When `strMax` is below `strMin`: shows a message, empties the control and sets `cancel`.
    void CheckRange(std::shared_ptr<TextControl> ctr, TextIn strMin, TextIn strMax, TextIn lblMin,
                    TextIn lblMax, bool& cancel) const;

  private:
    AmountSign sign_;
    Services& session_;
};

}  // namespace halvek
