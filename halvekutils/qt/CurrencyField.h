// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Export.h>
#include <halvekutils/base/TextIn.h>

#include <memory>

class QLineEdit;

namespace halvek {

class Utils;

/// Makes an ordinary line edit a currency field: with the focus it holds a bare number of up to
/// seven digits and two decimals, all selected at first; left, it shows "$1,234.50".
///
/// Whatever the user does is judged by the text that would result. A paste, a drop or an input
/// method may bring an amount in any clear form, "$1,234.50" or " 12 "; what could be read in two
/// ways or has too many digits is refused with a beep and changes nothing. A text that the host
/// sets stays as it is until the field is entered or left. Enter and the push buttons of the window
/// get to see the field as it is when left, the window's mere deactivation does not count. A
/// read-only field is locked.
///
/// The field replaces the line edit's validator and input mask, and widens a maximum length that
/// leaves no room for an amount. It may be made before or after the line edit is shown, and anew.
/// @param line  the line edit; null does nothing
/// @param utils  kept alive as long as the field; null for none
///
///     MakeCurrencyField(&amount);
HALVEK_EXPORT void MakeCurrencyField(QLineEdit* line, std::shared_ptr<Utils> utils = nullptr);

/// The same for amounts that may be negative: "-" turns the sign over, "(5.00)" can be pasted, and
/// a negative amount shows as "$-5.00".
HALVEK_EXPORT void MakeSignedCurrencyField(QLineEdit* line, std::shared_ptr<Utils> utils = nullptr);

/// Has an amount that is below another one refused when its field is left: a message tells so, the
/// field is emptied and keeps the focus. 0 and an empty field are in order with any amount.
///
/// @param from  the field of the lower amount; without it any amount is in order
/// @param to  the currency field that is checked; an ordinary line edit is made one
/// @param lblMin, lblMax  what the message calls the two
///
///     CheckCurrencyRange(&from, &to, u"From", u"To");
HALVEK_EXPORT void CheckCurrencyRange(QLineEdit* from, QLineEdit* to, TextIn lblMin, TextIn lblMax);

}  // namespace halvek
