// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Export.h>
#include <halvekutils/currency/AmountText.h>

#include <QLineEdit>
#include <QVariant>

#include <cstdint>
#include <optional>

namespace halvek {

/// A line edit that is a currency field from the start; see MakeCurrencyField.
class HALVEK_EXPORT CurrencyLineEdit : public QLineEdit {
    Q_OBJECT
    /// Cents() for designers, models and style sheets: a whole number, or null for nothing. Any
    /// other value changes nothing.
    Q_PROPERTY(QVariant cents READ CentsProperty WRITE SetCentsProperty NOTIFY CentsChanged)

  public:
    /// A field for amounts that are not negative.
    explicit CurrencyLineEdit(QWidget* parent = nullptr);
    /// A field for amounts that may be negative only if `sign` says so.
    explicit CurrencyLineEdit(AmountSign sign, QWidget* parent = nullptr);
    ~CurrencyLineEdit() override;

    /// The amount in cents; nothing when the field is empty or does not hold one. See
    /// CurrencyCents.
    std::optional<std::int64_t> Cents() const;
    /// Shows an amount of cents; nothing empties the field. See SetCurrencyCents.
    void SetCents(std::optional<std::int64_t> cents);

  Q_SIGNALS:
    /// The amount has changed, by the user or by the host.
    ///
    /// @code
    /// connect(&fee, &CurrencyLineEdit::CentsChanged, [&] { total.SetCents(fee.Cents()); });
    /// @endcode
    void CentsChanged(std::optional<std::int64_t> cents);

  private:
    QVariant CentsProperty() const;
    void SetCentsProperty(const QVariant& cents);
};

}  // namespace halvek
