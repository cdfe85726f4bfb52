// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/currency/AmountText.h>

#include <QLineEdit>
#include <QString>
#include <QValidator>

namespace halvek {

/// Judges every text that the user's doing would give a currency field, on whichever way: keys,
/// menus, the clipboard, drops, input methods. A refusal changes nothing and leaves no trace in the
/// history of changes.
class CurrencyValidator : public QValidator {
    Q_OBJECT

  public:
    CurrencyValidator(QLineEdit& line, AmountSign sign, QObject* parent);

    State validate(QString& text, int& caret) const override;

  private:
    bool DeletesFromInvalidText(const QString& text) const;

    QLineEdit& line_;
    AmountSign sign_;
    QString shown_;
};

}  // namespace halvek
