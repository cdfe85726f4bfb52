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
    explicit CurrencyLineEdit(QWidget* parent = nullptr);
    explicit CurrencyLineEdit(AmountSign sign, QWidget* parent = nullptr);
    ~CurrencyLineEdit() override;
};

}  // namespace halvek
