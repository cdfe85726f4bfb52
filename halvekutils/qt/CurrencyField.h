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

/// Makes an ordinary line edit a currency field. With the focus it holds a bare number of up to
/// seven digits and two decimals, all selected at first; once left, it shows "$1,234.50".
///
/// The field accepts or refuses each edit by the text that would result; a refusal beeps. A paste,
/// a drop or an input method may bring an amount in any clear form, "$1,234.50" or " 12 "; a text
/// that can be read in two ways or has too many digits changes nothing. A text that the host sets
/// while nobody types in the field is shown as an amount, or as it is if it is not one. A read-only
/// field is locked.
///
/// Enter and the window's buttons, shortcuts and menus leave the field before they act; the amount
/// is then selected, and the next key replaces it. Buttons that reject or help in a
/// QDialogButtonBox leave it unchecked, and so do controls and actions that a host marks with the
/// property "causesValidation" = false. Deactivating the window does not leave the field. The
/// delegate of a table or a QDataWidgetMapper commits the shown amount, or the text it has set
/// itself if the user has not changed it. A mapper also commits when the window is deactivated; it
/// then gets the bare number.
///
/// The field replaces the line edit's validator and input mask, and widens a maximum length that
/// leaves no room for an amount; it is aligned to the right unless it is centered. Call it before
/// or after the line edit is shown, and again to replace the field.
/// @param line  the line edit; null does nothing
/// @param utils  kept alive as long as the field; null for none
///
/// @code{.cpp}
/// MakeCurrencyField(&amount);
/// @endcode
HALVEK_EXPORT void MakeCurrencyField(QLineEdit* line, std::shared_ptr<Utils> utils = nullptr);

/// The same for amounts that may be negative: "-" turns the sign over, "(5.00)" can be pasted, and
/// a negative amount shows as "$-5.00".
HALVEK_EXPORT void MakeSignedCurrencyField(QLineEdit* line, std::shared_ptr<Utils> utils = nullptr);

/// Rejects an amount below `from`'s when either of the two fields is left, with a message: the
/// field is emptied and keeps the focus. 0 and an empty field are in order with any amount.
///
/// @param from  the field of the lower amount; without it any amount is in order
/// @param to  the currency field that is checked; an ordinary line edit is made one
/// @param lblMin,lblMax  what the message calls the two
///
/// @code{.cpp}
/// CheckCurrencyRange(&from, &to, u"From", u"To");
/// @endcode
HALVEK_EXPORT void CheckCurrencyRange(QLineEdit* from, QLineEdit* to, TextIn lblMin, TextIn lblMax);

/// Leaves the currency fields of a window, as a move of the focus would: they show their amounts
/// and check their ranges. For code that saves without a click or a shortcut, which the fields
/// would see: a timer, a slot that a host calls itself.
///
/// @param window  the window, or any widget in it; null leaves no field
/// @return  false when a field refuses to be left: a message has said why, and the field has the
/// focus
///
/// @code
/// QObject::connect(save, &QAction::triggered, window, [=] {
///     if (LeaveCurrencyFields(window)) Save(CurrencyCents(amount));
/// });
/// @endcode
HALVEK_EXPORT bool LeaveCurrencyFields(QWidget* window);

/// The amount of a currency field in cents, as it would be shown if the field were left now.
///
/// @return  nothing for null and for a field that is empty or does not hold an amount
HALVEK_EXPORT std::optional<std::int64_t> CurrencyCents(const QLineEdit* line);

/// Shows an amount of cents in a currency field, however large; a field that the user types in
/// turns it into a bare number at the next key.
///
/// @param line  the field; an ordinary line edit is made one for amounts that are not negative,
///              null does nothing
/// @param cents  nothing empties the field
///
/// @code{.cpp}
/// SetCurrencyCents(&amount, 123450);  // $1,234.50
/// @endcode
HALVEK_EXPORT void SetCurrencyCents(QLineEdit* line, std::optional<std::int64_t> cents);

}  // namespace halvek
