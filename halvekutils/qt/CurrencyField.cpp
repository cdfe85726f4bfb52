#include <halvekutils/qt/CurrencyField.h>
#include <halvekutils/qt/QtText.h>
#include <halvekutils/qt/forms/CurrencyFilter.h>

#include <utility>

namespace halvek {

namespace {

CurrencyFilter& Attach(QLineEdit& line, AmountSign sign, std::shared_ptr<Utils> utils) {
    delete CurrencyFilter::Of(line);
    return *new CurrencyFilter(line, sign, std::move(utils));
}

}  // namespace

void MakeCurrencyField(QLineEdit* line, std::shared_ptr<Utils> utils) {
    if (line != nullptr) Attach(*line, AmountSign::Unsigned, std::move(utils));
}

void MakeSignedCurrencyField(QLineEdit* line, std::shared_ptr<Utils> utils) {
    if (line != nullptr) Attach(*line, AmountSign::Signed, std::move(utils));
}

void CheckCurrencyRange(QLineEdit* from, QLineEdit* to, TextIn lblMin, TextIn lblMax) {
    if (to == nullptr) return;
    CurrencyFilter* field = CurrencyFilter::Of(*to);
    if (field == nullptr) field = &Attach(*to, AmountSign::Unsigned, nullptr);
    field->CheckRange({from, ToQString(lblMin), ToQString(lblMax)});
}

}  // namespace halvek
