// SPDX-License-Identifier: MIT
#include <halvekutils/qt/CurrencyField.h>
#include <halvekutils/qt/QtText.h>
#include <halvekutils/qt/currency/CurrencyFilter.h>

#include <utility>

namespace halvek {

void MakeCurrencyField(QLineEdit* line, std::shared_ptr<Utils> utils) {
    if (line != nullptr) CurrencyFilter::Attach(*line, AmountSign::Unsigned, std::move(utils));
}

void MakeSignedCurrencyField(QLineEdit* line, std::shared_ptr<Utils> utils) {
    if (line != nullptr) CurrencyFilter::Attach(*line, AmountSign::Signed, std::move(utils));
}

void CheckCurrencyRange(QLineEdit* from, QLineEdit* to, TextIn lblMin, TextIn lblMax) {
    if (to == nullptr) return;
    CurrencyFilter* field = CurrencyFilter::Of(*to);
    if (field == nullptr) field = &CurrencyFilter::Attach(*to, AmountSign::Unsigned, nullptr);
    field->CheckRange({from, ToQString(lblMin), ToQString(lblMax)});
}

}  // namespace halvek
