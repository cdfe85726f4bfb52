// SPDX-License-Identifier: MIT
#pragma once

#include <QLineEdit>
#include <QString>
#include <QValidator>

#include <optional>

namespace halvek {

class CurrencyFilter;

/// Checks every text that an edit would give a currency field, by keys, menus, the clipboard, drops
/// or input methods. A refusal changes nothing and adds nothing to the undo history. A text that
/// the host sets is turned into the amount to show before anybody sees it.
class CurrencyValidator : public QValidator {
    Q_OBJECT

  public:
    /// @param field  of the line edit, the owner
    CurrencyValidator(QLineEdit& line, CurrencyFilter& field);

    State validate(QString& text, int& caret) const override;

  private:
    bool DeletesFromInvalidText(const QString& text) const;
    void Rewrite(QString& text, int& caret, const QString& better) const;

    QLineEdit& line_;
    CurrencyFilter& field_;
    QString shown_;
    mutable std::optional<QString> rewritten_;  ///< comes back at once and must pass too
};

}  // namespace halvek
