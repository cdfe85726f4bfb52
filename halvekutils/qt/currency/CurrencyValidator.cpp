// SPDX-License-Identifier: MIT
#include <halvekutils/platform/Beep.h>
#include <halvekutils/qt/QtText.h>
#include <halvekutils/qt/currency/CurrencyFilter.h>
#include <halvekutils/qt/currency/CurrencyValidator.h>

#include <utility>

namespace halvek {

CurrencyValidator::CurrencyValidator(QLineEdit& line, CurrencyFilter& field)
    : QValidator(&field), line_(line), field_(field), shown_(line.text()) {
    connect(&line, &QLineEdit::textChanged, this, [this](const QString& text) { shown_ = text; });
}

QValidator::State CurrencyValidator::validate(QString& text, int& caret) const {
    if (std::exchange(rewritten_, std::nullopt) == text) return Acceptable;
    // A text that the program sets starts a new history.
    if (!line_.isUndoAvailable()) {
        Rewrite(text, caret, field_.TextGiven(text));
        return Acceptable;
    }
    const std::optional<std::u16string> typed = TypedAmount(text, field_.Sign());
    if (!typed) {
        if (DeletesFromInvalidText(text)) return Acceptable;
        Beep();
        return Invalid;
    }
    Rewrite(text, caret, ToQString(*typed));
    return Acceptable;
}

void CurrencyValidator::Rewrite(QString& text, int& caret, const QString& better) const {
    if (text == better) return;
    rewritten_ = better;
    text = better;
    caret = static_cast<int>(text.size());
}

/// The program may have set a text that is not an amount; the user must be able to delete it bit by
/// bit.
bool CurrencyValidator::DeletesFromInvalidText(const QString& text) const {
    return text.size() < shown_.size() && !TypedAmount(shown_, field_.Sign());
}

}  // namespace halvek
