// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Export.h>
#include <halvekutils/base/TextIn.h>

#include <cstdint>
#include <memory>
#include <optional>

class QLineEdit;
class QWidget;

namespace halvek {

class Utils;

/// Makes an ordinary line edit a currency field: with the focus it holds a bare number of up to
/// seven digits and two decimals, all selected at first; left, it shows "$1,234.50".
///
/// Whatever the user does is judged by the text that would result; what is refused beeps. A paste,
/// a drop or an input method may bring an amount in any clear form, "$1,234.50" or " 12 "; what
/// could be read in two ways or has too many digits changes nothing. A text that the host sets
/// while the field is not typed in is shown as an amount; one that is no amount stays as it is. A
/// read-only field is locked.
///
/// Enter, and the buttons, shortcuts and menus of the window see the field as it is when left; the
/// amount is then selected, since the next key replaces it. Buttons that reject or help in a
/// QDialogButtonBox leave it unchecked, and so do controls and actions of any kind that a host
/// marks by the property "causesValidation" = false. The window's mere deactivation does not count.
/// The delegate of a table or a QDataWidgetMapper commits what is shown, and what it has set itself
/// when the user has not changed it.
///
/// The field replaces the line edit's validator and input mask, and widens a maximum length that
/// leaves no room for an amount; it is aligned to the right unless it is centered. It may be made
/// before or after the line edit is shown, and anew.
/// @param line  the line edit; null does nothing
/// @param utils  kept alive as long as the field; null for none
///
///     MakeCurrencyField(&amount);
HALVEK_EXPORT void MakeCurrencyField(QLineEdit* line, std::shared_ptr<Utils> utils = nullptr);

/// The same for amounts that may be negative: "-" turns the sign over, "(5.00)" can be pasted, and
/// a negative amount shows as "$-5.00".
HALVEK_EXPORT void MakeSignedCurrencyField(QLineEdit* line, std::shared_ptr<Utils> utils = nullptr);

/// Rejects an amount below `from`'s when either of the two fields is left, with a message: the
/// field is emptied and keeps the focus. 0 and an empty field are in order with any amount.
///
/// @param from  the field of the lower amount; without it any amount is in order
/// @param to  the currency field that is checked; an ordinary line edit is made one
/// @param lblMin, lblMax  what the message calls the two
///
///     CheckCurrencyRange(&from, &to, u"From", u"To");
HALVEK_EXPORT void CheckCurrencyRange(QLineEdit* from, QLineEdit* to, TextIn lblMin, TextIn lblMax);

/// Leaves the currency fields of a window, as a move of the focus would: they show their amounts
/// and check their ranges. For what saves without a click or a shortcut that the fields see by
/// themselves: a timer, a slot that a host calls on its own.
///
/// @param window  the window, or any widget in it; null leaves no field
/// @return  false when a field must not be left: a message has told why, and it has the focus
///
/// @code
/// QObject::connect(save, &QAction::triggered, window, [=] {
///     if (LeaveCurrencyFields(window)) Save(CurrencyCents(amount));
/// });
/// @endcode
HALVEK_EXPORT bool LeaveCurrencyFields(QWidget* window);

/// The amount of a currency field in cents, as it would be shown if the field were left now.
///
/// @return  nothing when the field is empty or holds no amount, and for null
HALVEK_EXPORT std::optional<std::int64_t> CurrencyCents(const QLineEdit* line);

/// Shows an amount of cents in a currency field, however large; a field that is typed in shows it
/// as a bare number at the next key.
///
/// @param line  the field; an ordinary line edit is made one for amounts that are not negative,
///              null does nothing
/// @param cents  nothing empties the field
///
///     SetCurrencyCents(&amount, 123450);  // $1,234.50
HALVEK_EXPORT void SetCurrencyCents(QLineEdit* line, std::optional<std::int64_t> cents);

}  // namespace halvek
