// SPDX-License-Identifier: MIT
#include <halvekutils/base/Characters.h>
#include <halvekutils/base/RuntimeError.h>
#include <halvekutils/currency/BareText.h>
#include <halvekutils/currency/CurrencyHandlers.h>

#include <cstdint>
#include <utility>

namespace halvek {

namespace {

// Two characters stay, whatever the number of decimals is.
constexpr std::size_t kCharactersKept = 2;

bool HasMinus(const std::u16string& text) {
    return text.find(u'-') != text.npos;
}

/// Where the mark of a shown amount is: in front when the text starts with "$" or a blank, else at
/// its first "$".
std::size_t MarkOf(const std::u16string& text) {
    const bool startsWithMark = text.front() == u'$' || text.front() == u' ';
    return startsWithMark ? 0 : text.find(u'$');
}

/// A number without a point that has too many digits: nine end in cents, else seven are kept.
std::u16string WithinLimits(std::u16string text) {
    if (text.size() <= kWholeDigits || text.find(u'.') != text.npos) return text;
    // A sign counted as a digit would make the amount ten times smaller.
    if (IsSign(text.front())) throw RuntimeError(Fault::TypeMismatch, u"a sign too many");
    const bool endsInCents = text.size() == kWholeDigits + kFractionDigits;
    if (!endsInCents) text.replace(kWholeDigits, text.npos, u"00");
    text.insert(kWholeDigits, 1, u'.');
    return text;
}

}  // namespace

void CutDecimals(TextControl& ctr, AmountSign sign) {
    std::u16string text = ctr.Text();
    const bool negative = sign == AmountSign::Signed && HasMinus(text);
    if (negative) text = Without(std::move(text), u'-');
    const std::size_t point = text.find(u'.');
    if (point == text.npos || text.size() - point - 1 <= kCharactersKept) return;
    text.resize(point + 1 + kCharactersKept);
    if (point == 0) text.insert(0, 1, u'0');
    if (negative) text.insert(0, 1, u'-');
    ctr.Text(text);
    ctr.SelStart(LengthOf(text));
}

void EnterCurrencyField(TextControl& ctr) {
    std::u16string text = ctr.Text();
    if (!ctr.Locked()) {
        const std::size_t length = text.size();
        if (text.find(u'$') != text.npos) text.erase(MarkOf(text), 1);
        std::erase(text, u',');
        if (text.size() != length) ctr.Text(text);
    }
    ctr.SelStart(0);
    ctr.SelLength(LengthOf(text));
}

void LeaveCurrencyField(TextControl& ctr, bool& cancel, AmountSign sign) {
    std::u16string text = BareText(ctr.Text());
    const bool negative = sign == AmountSign::Signed && HasMinus(text);
    if (negative) {
        text = TrimmedText(Without(std::move(text), u'-'));
        if (text.empty() || text == u"0.00") {
            ctr.Text(text);
            cancel = false;
            return;
        }
    } else if (text.empty()) {
        cancel = false;
        return;
    }
    text = WithinLimits(std::move(text));
    if (negative) text.insert(0, 1, u'-');
    ctr.Text(u'$' + FormatAmount(text));
}

}  // namespace halvek
