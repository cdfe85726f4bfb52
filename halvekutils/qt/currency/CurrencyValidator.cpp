// SPDX-License-Identifier: MIT
#include <halvekutils/platform/Beep.h>
#include <halvekutils/qt/QtText.h>
#include <halvekutils/qt/currency/CurrencyValidator.h>

namespace halvek {

CurrencyValidator::CurrencyValidator(QLineEdit& line, AmountSign sign, QObject* parent)
    : QValidator(parent), line_(line), sign_(sign), shown_(line.text()) {
    connect(&line, &QLineEdit::textChanged, this, [this](const QString& text) { shown_ = text; });
}

QValidator::State CurrencyValidator::validate(QString& text, int& caret) const {
    // A text that the program sets starts a new history; it is left as it was written.
    if (!line_.isUndoAvailable()) return Acceptable;
    const std::optional<std::u16string> typed = TypedAmount(text, sign_);
    if (!typed) {
        if (DeletesFromInvalidText(text)) return Acceptable;
        Beep();
        return Invalid;
    }
    if (TextIn(text) != *typed) {
        text = ToQString(*typed);
        caret = static_cast<int>(text.size());
    }
    return Acceptable;
}

/// What the program wrote may be no amount; the user must be able to delete it bit by bit.
bool CurrencyValidator::DeletesFromInvalidText(const QString& text) const {
    return text.size() < shown_.size() && !TypedAmount(shown_, sign_);
}

}  // namespace halvek
