// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Export.h>
#include <halvekutils/currency/AmountText.h>

#include <QLineEdit>

namespace halvek {

/// A line edit that is a currency field from the start; see MakeCurrencyField.
class HALVEK_EXPORT CurrencyLineEdit : public QLineEdit {
    Q_OBJECT

  public:
    /// A field for amounts that are not negative.
    explicit CurrencyLineEdit(QWidget* parent = nullptr);
    /// A field whose amounts may be negative or not, as `sign` says.
    explicit CurrencyLineEdit(AmountSign sign, QWidget* parent = nullptr);
    ~CurrencyLineEdit() override;
};

}  // namespace halvek
