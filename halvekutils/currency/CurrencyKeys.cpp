// SPDX-License-Identifier: MIT
#include <halvekutils/base/Characters.h>
#include <halvekutils/currency/BareText.h>
#include <halvekutils/currency/CurrencyKeys.h>

#include <algorithm>
#include <utility>

namespace halvek {

namespace {

constexpr char16_t kBackspace = 8;

void WriteAndGoToEnd(TextControl& ctr, const std::u16string& text) {
    ctr.Text(text);
    ctr.SelStart(LengthOf(text));
}

/// A control's text as the rules see it: without "$", surrounding blanks and sign.
struct Entry {
    Entry(const TextControl& ctr, AmountSign amountSign)
        : shown(ctr.Text()), text(BareText(shown)), number(text) {
        if (amountSign == AmountSign::Unsigned || text.find(u'-') == text.npos) return;
        sign = u"-";
        number = Without(text, u'-');
    }

    std::u16string shown;  ///< as the control has it
    std::u16string text;
    std::u16string number;
    std::u16string sign;  ///< "-" or empty
};

bool CoversAll(const TextControl& ctr) {
    const std::u16string shown = ctr.Text();
    if (shown.empty()) return false;
    const std::int32_t selected = ctr.SelLength();
    return selected == LengthOf(shown) || selected == LengthOf(BareText(shown));
}

bool IsCaretAtEnd(const TextControl& ctr, const Entry& entry) {
    const auto caret = static_cast<std::size_t>(std::max(ctr.SelStart(), 0));
    return BareText(entry.shown.substr(0, caret)).size() >= entry.text.size();
}

/// A key that passes must not land before the sign.
void PutCaretBehindSign(TextControl& ctr, const Entry& entry) {
    if (entry.sign.empty() || !entry.text.starts_with(u'-')) return;
    const auto behind = static_cast<std::int32_t>(entry.shown.find(u'-') + 1);
    if (ctr.SelLength() == 0 && ctr.SelStart() < behind) ctr.SelStart(behind);
}

bool HasNoRoom(const std::u16string& number, bool caretAtEnd) {
    const std::size_t point = number.find(u'.');
    if (point == number.npos) return number.size() >= kWholeDigits;
    const std::size_t fractionEnd = std::min(number.find(u'.', point + 1), number.size());
    const std::size_t fraction = fractionEnd - point - 1;
    const bool hasComma = number.find(u',') != number.npos;
    if (hasComma && point > kWholeDigits) return true;
    if (!hasComma && point == kWholeDigits && fraction == kFractionDigits) return true;
    return fraction >= kFractionDigits && caretAtEnd;
}

// Each returns whether the control inserts the key.

bool PressDigit(TextControl& ctr, const Entry& entry, char16_t digit) {
    if (ctr.SelLength() > 0) return true;
    if (entry.number.empty()) {
        WriteAndGoToEnd(ctr, entry.sign + digit);
        return false;
    }
    if (HasNoRoom(entry.number, IsCaretAtEnd(ctr, entry))) {
        ctr.SelStart(LengthOf(entry.shown));
        return false;
    }
    PutCaretBehindSign(ctr, entry);
    return true;
}

bool PressPoint(TextControl& ctr, const Entry& entry) {
    if (entry.number.empty()) {
        WriteAndGoToEnd(ctr, entry.sign + u"0.");
        return false;
    }
    const std::size_t point = entry.shown.find(u'.');
    if (point != entry.shown.npos) {
        ctr.SelStart(static_cast<std::int32_t>(point + 1));
        return false;
    }
    PutCaretBehindSign(ctr, entry);
    return true;
}

bool PressSign(TextControl& ctr, const Entry& entry, bool minus) {
    if (entry.text.empty()) return minus;
    const bool becomesNegative = minus && entry.sign.empty();
    ctr.Text(becomesNegative ? u"-" + entry.number : entry.number);
    ctr.SelStart(becomesNegative ? 1 : 0);
    return false;
}

bool Press(TextControl& ctr, char16_t key, AmountSign sign) {
    if (ctr.Locked()) return false;
    const bool replaces = IsDigit(key) || key == u'.' || key == u'-';
    if (replaces && CoversAll(ctr)) ctr.Text(u"");
    if (key == kBackspace) return true;

    const Entry entry(ctr, sign);
    if (IsDigit(key)) return PressDigit(ctr, entry, key);
    if (key == u'.') return PressPoint(ctr, entry);
    return IsSign(key) && sign == AmountSign::Signed && PressSign(ctr, entry, key == u'-');
}

}  // namespace

void PressCurrencyKey(TextControl& ctr, std::int16_t& keyAscii, AmountSign sign) {
    const std::int16_t key = std::exchange(keyAscii, std::int16_t{0});
    if (Press(ctr, static_cast<char16_t>(key), sign)) keyAscii = key;
}

}  // namespace halvek
