// SPDX-License-Identifier: MIT
#include <halvekutils/currency/ShownAmount.h>
#include <halvekutils/platform/Desktop.h>
#include <halvekutils/qt/CurrencyField.h>
#include <halvekutils/qt/QtText.h>
#include <halvekutils/qt/currency/CurrencyFilter.h>
#include <halvekutils/qt/currency/CurrencyWatch.h>
#include <halvekutils/qt/helpers/EventGuard.h>

#include <utility>

namespace halvek {

namespace {

/// The filter of a line edit; makes the line edit a currency field if it is not one yet.
CurrencyFilter& FieldOf(QLineEdit& line) {
    CurrencyFilter* const field = CurrencyFilter::Of(line);
    return field != nullptr ? *field : CurrencyFilter::Attach(line, AmountSign::Unsigned, nullptr);
}

bool LeaveFieldsOf(QWidget& window) {
    const QWidget* const top = window.window();
    for (const QPointer<CurrencyFilter>& field : CurrencyWatch::OfApplication().Fields()) {
        QLineEdit* const line = field != nullptr ? field->Line() : nullptr;
        if (line != nullptr && line->window() == top && !field->LeaveForAct(*line)) return false;
    }
    return true;
}

/// The way into what the host calls: off the user-interface thread it is a fault.
template <class Body>
void Enter(const char16_t* name, const Body& body) {
    GuardEvent(name, [&] {
        Desktop::RequireItsThread();
        body();
    });
}

}  // namespace

void MakeCurrencyField(QLineEdit* line, std::shared_ptr<Utils> utils) {
    if (line == nullptr) return;
    Enter(u"MakeCurrencyField",
          [&] { CurrencyFilter::Attach(*line, AmountSign::Unsigned, std::move(utils)); });
}

void MakeSignedCurrencyField(QLineEdit* line, std::shared_ptr<Utils> utils) {
    if (line == nullptr) return;
    Enter(u"MakeSignedCurrencyField",
          [&] { CurrencyFilter::Attach(*line, AmountSign::Signed, std::move(utils)); });
}

void CheckCurrencyRange(QLineEdit* from, QLineEdit* to, TextIn lblMin, TextIn lblMax) {
    if (to == nullptr) return;
    Enter(u"CheckCurrencyRange", [&] {
        FieldOf(*to).CheckRange({from, ToQString(lblMin), ToQString(lblMax)});
    });
}

bool LeaveCurrencyFields(QWidget* window) {
    if (window == nullptr) return true;
    bool left = false;
    Enter(u"LeaveCurrencyFields", [&] { left = LeaveFieldsOf(*window); });
    return left;
}

std::optional<std::int64_t> CurrencyCents(const QLineEdit* line) {
    if (line == nullptr) return std::nullopt;
    const CurrencyFilter* const field = CurrencyFilter::Of(*line);
    const AmountSign sign = field != nullptr ? field->Sign() : AmountSign::Signed;
    return CentsIn(ShownAmount(line->text(), sign).value_or(u""));
}

void SetCurrencyCents(QLineEdit* line, std::optional<std::int64_t> cents) {
    if (line == nullptr) return;
    Enter(u"SetCurrencyCents", [&] {
        FieldOf(*line);
        line->setText(cents ? ToQString(u'$' + FormatCents(*cents)) : QString());
    });
}

}  // namespace halvek
