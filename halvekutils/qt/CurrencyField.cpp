// SPDX-License-Identifier: MIT
#include <halvekutils/currency/ShownAmount.h>
#include <halvekutils/qt/CurrencyField.h>
#include <halvekutils/qt/QtText.h>
#include <halvekutils/qt/currency/CurrencyFilter.h>
#include <halvekutils/qt/currency/CurrencyWatch.h>

#include <utility>

namespace halvek {

namespace {

/// The filter of a line edit; makes the line edit a currency field if it is not one yet.
CurrencyFilter& FieldOf(QLineEdit& line) {
    CurrencyFilter* const field = CurrencyFilter::Of(line);
    return field != nullptr ? *field : CurrencyFilter::Attach(line, AmountSign::Unsigned, nullptr);
}

}  // namespace

void MakeCurrencyField(QLineEdit* line, std::shared_ptr<Utils> utils) {
    if (line != nullptr) CurrencyFilter::Attach(*line, AmountSign::Unsigned, std::move(utils));
}

void MakeSignedCurrencyField(QLineEdit* line, std::shared_ptr<Utils> utils) {
    if (line != nullptr) CurrencyFilter::Attach(*line, AmountSign::Signed, std::move(utils));
}

void CheckCurrencyRange(QLineEdit* from, QLineEdit* to, TextIn lblMin, TextIn lblMax) {
    if (to == nullptr) return;
    FieldOf(*to).CheckRange({from, ToQString(lblMin), ToQString(lblMax)});
}

bool LeaveCurrencyFields(QWidget* window) {
    if (window == nullptr) return true;
    for (const QPointer<CurrencyFilter>& field : CurrencyWatch::OfApplication().Fields()) {
        QLineEdit* const line = field != nullptr ? field->Line() : nullptr;
        const bool isInWindow = line != nullptr && line->window() == window->window();
        if (isInWindow && !field->Leave(*line)) return false;
    }
    return true;
}

std::optional<std::int64_t> CurrencyCents(const QLineEdit* line) {
    if (line == nullptr) return std::nullopt;
    const CurrencyFilter* const field = CurrencyFilter::Of(*line);
    const AmountSign sign = field != nullptr ? field->Sign() : AmountSign::Signed;
    return CentsIn(ShownAmount(line->text(), sign).value_or(u""));
}

void SetCurrencyCents(QLineEdit* line, std::optional<std::int64_t> cents) {
    if (line == nullptr) return;
    FieldOf(*line);
    line->setText(cents ? ToQString(u'$' + FormatCents(*cents)) : QString());
}

}  // namespace halvek
