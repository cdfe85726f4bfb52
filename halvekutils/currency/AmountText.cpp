// SPDX-License-Identifier: MIT
#include <halvekutils/base/Characters.h>
#include <halvekutils/base/NumericText.h>
#include <halvekutils/base/RuntimeError.h>
#include <halvekutils/currency/AmountText.h>

#include <algorithm>
#include <charconv>
#include <iterator>
#include <string_view>
#include <system_error>

namespace halvek {

namespace {

constexpr std::size_t kGroupDigits = 3;
constexpr std::u16string_view kBlanks = u" \t\u00A0";
constexpr std::u16string_view kAround = u" \t\r\n\u00A0";

std::size_t LeadingDigits(std::u16string_view text) {
    return static_cast<std::size_t>(std::ranges::find_if_not(text, IsDigit) - text.begin());
}

bool IsDigits(std::u16string_view text) {
    return std::ranges::all_of(text, IsDigit);
}

/// Removes a leading sign; true for a "-".
bool TakeSign(std::u16string_view& text) {
    return !TakeFront(text, u'+') && TakeFront(text, u'-');
}

/// Removes a leading "$" and the blanks after it; true when it was there.
bool TakeDollar(std::u16string_view& text) {
    if (!TakeFront(text, u'$')) return false;
    text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
    return true;
}

/// Digits, or one to three digits and then groups of three, each after a comma.
bool IsWhole(std::u16string_view text) {
    std::size_t digits = LeadingDigits(text);
    if (digits == text.size()) return true;
    if (digits == 0 || digits > kGroupDigits || text.front() == u'0') return false;
    text.remove_prefix(digits);
    while (TakeFront(text, u',')) {
        digits = LeadingDigits(text);
        if (digits != kGroupDigits) return false;
        text.remove_prefix(digits);
    }
    return text.empty();
}

/// A number without a sign, as views of its digits.
struct Decimal {
    std::u16string_view whole;  ///< maybe with commas
    std::u16string_view fraction;
    bool hasPoint = false;
};

std::optional<Decimal> ReadDecimal(std::u16string_view text) {
    const std::size_t point = text.find(u'.');
    Decimal number{text.substr(0, point), {}, point != text.npos};
    if (number.hasPoint) number.fraction = text.substr(point + 1);
    const bool hasDigit = !number.whole.empty() || !number.fraction.empty();
    if (!hasDigit || !IsWhole(number.whole) || !IsDigits(number.fraction)) return std::nullopt;
    return number;
}

void AppendDigits(std::u16string& out, std::u16string_view whole) {
    std::ranges::copy_if(whole, std::back_inserter(out), IsDigit);
}

bool RoundsUp(const Decimal& number) {
    return number.fraction.size() > kFractionDigits && number.fraction[kFractionDigits] >= u'5';
}

/// The number in hundredths plus one, as digits.
std::u16string NextHundredth(const Decimal& number) {
    std::u16string digits(1, u'0');
    AppendDigits(digits, number.whole);
    digits += number.fraction.substr(0, kFractionDigits);
    std::size_t at = digits.size();
    while (digits[--at] == u'9') digits[at] = u'0';
    ++digits[at];
    return digits;
}

std::u16string_view WithoutLeadingZeros(std::u16string_view digits) {
    return digits.substr(std::min(digits.find_first_not_of(u'0'), digits.size()));
}

void AppendGrouped(std::u16string& out, std::u16string_view whole) {
    auto left = static_cast<std::size_t>(std::ranges::count_if(whole, IsDigit));
    if (left == 0) out += u'0';
    for (const char16_t character : whole) {
        if (!IsDigit(character)) continue;
        out += character;
        if (--left > 0 && left % kGroupDigits == 0) out += u',';
    }
}

/// The number with thousands commas, cut to two decimals.
std::u16string Shown(const Decimal& number, bool negative) {
    const std::u16string_view whole = WithoutLeadingZeros(number.whole);
    const std::u16string_view fraction = number.fraction.substr(0, kFractionDigits);
    const bool isZero = whole.empty() && WithoutLeadingZeros(fraction).empty();
    constexpr std::size_t kMarks = 4;  // a sign, a point, the zero before it, and the caller's "$"
    std::u16string out;
    out.reserve(whole.size() + whole.size() / kGroupDigits + kFractionDigits + kMarks);
    if (negative && !isZero) out += u'-';
    AppendGrouped(out, whole);
    out += u'.';
    out += fraction;
    out.append(kFractionDigits - fraction.size(), u'0');
    return out;
}

}  // namespace

std::u16string FormatAmount(TextIn text) {
    std::u16string_view rest = text;
    const bool negative = TakeSign(rest);
    std::optional<Decimal> number = ReadDecimal(rest);
    if (!number) throw RuntimeError(Fault::TypeMismatch, u"not an amount");
    if (!RoundsUp(*number)) return Shown(*number, negative);

    const std::u16string digits = NextHundredth(*number);
    const std::size_t split = digits.size() - kFractionDigits;
    number->whole = std::u16string_view(digits).substr(0, split);
    number->fraction = std::u16string_view(digits).substr(split);
    return Shown(*number, negative);
}

std::u16string FormatCents(std::int64_t cents) {
    std::u16string text = IntegerText(cents);
    const std::size_t sign = cents < 0 ? 1 : 0;
    const std::size_t digits = text.size() - sign;
    if (digits < kFractionDigits) text.insert(sign, kFractionDigits - digits, u'0');
    text.insert(text.size() - kFractionDigits, 1, u'.');
    return FormatAmount(text);
}

std::optional<std::int64_t> CentsIn(TextIn text) {
    const std::optional<std::u16string> bare = BareAmount(text, AmountSign::Signed);
    if (!bare) return std::nullopt;
    std::string digits;
    for (const char16_t character : FormatAmount(*bare)) {
        if (character != u',' && character != u'.') digits += static_cast<char>(character);
    }
    std::int64_t cents = 0;
    const auto end = digits.data() + digits.size();
    const bool fits = std::from_chars(digits.data(), end, cents).ec == std::errc();
    return fits ? std::optional(cents) : std::nullopt;
}

bool IsTypedAmount(TextIn text, AmountSign sign) {
    std::u16string_view rest = text;
    if (sign == AmountSign::Signed) TakeFront(rest, u'-');
    const std::size_t whole = LeadingDigits(rest);
    if (whole > kWholeDigits) return false;
    rest.remove_prefix(whole);
    if (!TakeFront(rest, u'.')) return rest.empty();
    return rest.size() <= kFractionDigits && IsDigits(rest);
}

std::optional<std::u16string> BareAmount(TextIn text, AmountSign sign) {
    std::u16string_view rest = Trimmed(text, kAround);

    const bool hasDollar = TakeDollar(rest);
    bool negative = false;
    if (rest.starts_with(u'(') && rest.ends_with(u')')) {
        rest = rest.substr(1, rest.size() - 2);
        negative = true;
    } else {
        negative = TakeSign(rest);
    }
    if (!hasDollar) TakeDollar(rest);
    if (negative && sign == AmountSign::Unsigned) return std::nullopt;
    const std::optional<Decimal> number = ReadDecimal(rest);
    if (!number) return std::nullopt;

    std::u16string bare(negative ? 1 : 0, u'-');
    AppendDigits(bare, number->whole);
    if (number->hasPoint) bare += u'.';
    bare += number->fraction;
    return bare;
}

std::optional<std::u16string> TypedAmount(TextIn text, AmountSign sign) {
    if (IsTypedAmount(text, sign)) return text.Str();
    std::optional<std::u16string> bare = BareAmount(text, sign);
    return bare && IsTypedAmount(*bare, sign) ? bare : std::nullopt;
}

}  // namespace halvek
