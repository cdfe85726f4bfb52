// SPDX-License-Identifier: MIT
#include <halvekutils/qt/CurrencyField.h>
#include <halvekutils/qt/CurrencyLineEdit.h>

namespace halvek {

CurrencyLineEdit::CurrencyLineEdit(QWidget* parent)
    : CurrencyLineEdit(AmountSign::Unsigned, parent) {}

CurrencyLineEdit::CurrencyLineEdit(AmountSign sign, QWidget* parent) : QLineEdit(parent) {
    if (sign == AmountSign::Signed) {
        MakeSignedCurrencyField(this);
    } else {
        MakeCurrencyField(this);
    }
}

CurrencyLineEdit::~CurrencyLineEdit() = default;

}  // namespace halvek
