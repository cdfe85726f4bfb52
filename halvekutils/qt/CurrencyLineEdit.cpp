// SPDX-License-Identifier: MIT
#include <halvekutils/qt/CurrencyField.h>
#include <halvekutils/qt/CurrencyLineEdit.h>

#include <utility>

namespace halvek {

CurrencyLineEdit::CurrencyLineEdit(QWidget* parent)
    : CurrencyLineEdit(AmountSign::Unsigned, parent) {}

CurrencyLineEdit::CurrencyLineEdit(AmountSign sign, QWidget* parent) : QLineEdit(parent) {
    if (sign == AmountSign::Signed) {
        MakeSignedCurrencyField(this);
    } else {
        MakeCurrencyField(this);
    }
    connect(this, &QLineEdit::textChanged, this,
            [this, known = std::optional<std::int64_t>()]() mutable {
                const std::optional<std::int64_t> cents = Cents();
                if (std::exchange(known, cents) != cents) Q_EMIT CentsChanged(cents);
            });
}

CurrencyLineEdit::~CurrencyLineEdit() = default;

std::optional<std::int64_t> CurrencyLineEdit::Cents() const {
    return CurrencyCents(this);
}

void CurrencyLineEdit::SetCents(std::optional<std::int64_t> cents) {
    SetCurrencyCents(this, cents);
}

QVariant CurrencyLineEdit::CentsProperty() const {
    const std::optional<std::int64_t> cents = Cents();
    return cents ? QVariant(static_cast<qlonglong>(*cents)) : QVariant();
}

/// Accepts a text too, since models may hold numbers as texts; refuses a fraction.
void CurrencyLineEdit::SetCentsProperty(const QVariant& cents) {
    const QString text = cents.toString();
    if (text.isEmpty()) return SetCents(std::nullopt);
    bool isWhole = false;
    const qlonglong number = text.toLongLong(&isWhole);
    if (isWhole) SetCents(number);
}

}  // namespace halvek
