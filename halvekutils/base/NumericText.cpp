// SPDX-License-Identifier: MIT
#include <halvekutils/base/Characters.h>
#include <halvekutils/base/NumericText.h>
#include <halvekutils/base/RuntimeError.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <iterator>
#include <limits>
#include <string_view>
#include <system_error>

namespace halvek {

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

std::u16string_view WithoutLeadingBlanks(std::u16string_view text) {
    while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
    return text;
}

std::size_t SkipDigits(std::u16string_view text, std::size_t at) {
    while (at < text.size() && IsDigit(text[at])) ++at;
    return at;
}

/// Like SkipDigits from the start, but also skips commas between two digits.
std::size_t SkipGroupedDigits(std::u16string_view text) {
    std::size_t at = SkipDigits(text, 0);
    while (at > 0 && at + 1 < text.size() && text[at] == u',' && IsDigit(text[at + 1])) {
        at = SkipDigits(text, at + 1);
    }
    return at;
}

std::size_t SkipExponent(std::u16string_view text, std::size_t at) {
    if (at == text.size() || (text[at] != u'e' && text[at] != u'E')) return at;
    std::size_t digits = at + 1;
    if (digits < text.size() && IsSign(text[digits])) ++digits;
    const std::size_t end = SkipDigits(text, digits);
    return end > digits ? end : at;
}

/// Where an unsigned number ends, given where its whole digits end; 0 when it has no digit.
std::size_t NumberEnd(std::u16string_view text, std::size_t wholeEnd) {
    if (wholeEnd == text.size() || text[wholeEnd] != u'.') {
        return wholeEnd == 0 ? 0 : SkipExponent(text, wholeEnd);
    }
    const std::size_t end = SkipDigits(text, wholeEnd + 1);
    return end == 1 ? 0 : SkipExponent(text, end);
}

std::int64_t ExponentOf(std::string_view exponent) {
    constexpr std::int64_t kFar = std::numeric_limits<std::int64_t>::max() / 2;
    if (exponent.starts_with('+')) exponent.remove_prefix(1);
    std::int64_t value = exponent.starts_with('-') ? -kFar : kFar;
    std::from_chars(exponent.data(), exponent.data() + exponent.size(), value);
    return std::clamp(value, -kFar, kFar);
}

/// The value of a number that from_chars found out of range; from_chars does not say on which side.
double BeyondRange(std::string_view number) {
    const std::size_t mantissaEnd = std::min(number.find_first_of("eE"), number.size());
    const std::size_t point = std::min(number.find('.'), mantissaEnd);
    const std::size_t leading = number.find_first_of("123456789");
    auto magnitude = static_cast<std::int64_t>(point) - static_cast<std::int64_t>(leading);
    if (mantissaEnd < number.size()) magnitude += ExponentOf(number.substr(mantissaEnd + 1));
    return magnitude > 0 ? kInfinity : 0;
}

/// Reads a well-formed number without a sign. The buffer has room for all of its characters.
double ReadThrough(char* buffer, std::u16string_view number) {
    char* end = buffer;
    for (const char16_t character : number) {
        if (character != u',') *end++ = static_cast<char>(character);
    }
    double value = 0;
    const std::from_chars_result read = std::from_chars(buffer, end, value);
    if (read.ec == std::errc::result_out_of_range) return BeyondRange({buffer, end});
    return value;
}

double ReadNumber(std::u16string_view number) {
    char buffer[64];
    if (number.size() <= std::size(buffer)) return ReadThrough(buffer, number);
    return ReadThrough(std::string(number.size(), '0').data(), number);
}

/// Subtracts instead of negating: 0 - 0 is not minus zero.
double WithSign(double magnitude, bool negative) {
    return negative ? 0 - magnitude : magnitude;
}

/// Removes the sign at either end; 0 when there is none.
char16_t TakeSign(std::u16string_view& text) {
    if (text.empty()) return 0;
    const char16_t first = text.front();
    const char16_t last = text.back();
    if (IsSign(first)) {
        text.remove_prefix(1);
        return first;
    }
    if (IsSign(last)) {
        text.remove_suffix(1);
        return last;
    }
    return 0;
}

/// Removes sign, "$" and parentheses; true when they make the amount negative. A mark too many
/// stays in the text, which then is not a number.
bool TakeMarks(std::u16string_view& text) {
    const bool dollar = TakeFront(text, u'$');
    bool negative = false;
    if (text.size() >= 2 && text.front() == u'(' && text.back() == u')') {
        text = text.substr(1, text.size() - 2);
        negative = true;
    } else {
        negative = TakeSign(text) == u'-';
    }
    if (!dollar) TakeFront(text, u'$');
    return negative;
}

std::u16string Widened(const char* begin, const char* end) {
    return std::u16string(begin, end);
}

/// Hundredths of a number in plain notation with three decimals or more, halves away from zero.
double CentsOf(std::string_view number, std::size_t point) {
    double cents = 0;
    for (const char character : number.substr(0, point + 3)) {
        if (character != '.') cents = cents * 10 + (character - '0');
    }
    return number[point + 3] >= '5' ? cents + 1 : cents;
}

}  // namespace

double Val(TextIn text) {
    std::u16string_view rest = WithoutLeadingBlanks(text);
    const bool negative = rest.starts_with(u'-');
    if (!rest.empty() && IsSign(rest.front())) rest.remove_prefix(1);
    const std::size_t length = NumberEnd(rest, SkipDigits(rest, 0));
    return length == 0 ? 0 : WithSign(ReadNumber(rest.substr(0, length)), negative);
}

std::size_t NumberLength(TextIn text) {
    std::u16string_view rest = WithoutLeadingBlanks(text);
    if (!rest.empty() && IsSign(rest.front())) rest.remove_prefix(1);
    const std::size_t length = NumberEnd(rest, SkipDigits(rest, 0));
    return length == 0 ? 0 : text.size() - rest.size() + length;
}

std::optional<double> ToNumber(TextIn text) {
    std::u16string_view number = Trimmed(text, u" \t");
    const bool negative = TakeMarks(number);
    const std::size_t length = NumberEnd(number, SkipGroupedDigits(number));
    if (length == 0 || length != number.size()) return std::nullopt;
    const double magnitude = ReadNumber(number);
    if (magnitude == kInfinity) return std::nullopt;
    return WithSign(magnitude, negative);
}

bool IsNumeric(TextIn text) {
    return ToNumber(text).has_value();
}

std::int32_t RoundToInt32(double number) {
    using Limits = std::numeric_limits<std::int32_t>;
    const double whole = std::nearbyint(number);
    if (!(whole >= Limits::min() && whole <= Limits::max())) throw RuntimeError(Fault::Overflow);
    return static_cast<std::int32_t>(whole);
}

std::int32_t ToInt32(TextIn text) {
    // Up to nine digits and nothing else, as servers send numbers, always fit.
    constexpr std::size_t kFitting = 9;
    if (!text.empty() && text.size() <= kFitting && std::ranges::all_of(text, IsDigit)) {
        std::int32_t number = 0;
        for (const char16_t digit : text) number = number * 10 + (digit - u'0');
        return number;
    }
    return RoundToInt32(Val(text));
}

double RoundToCents(double number) {
    // From here on doubles are more than a hundredth apart, so two decimals distinguish them all.
    constexpr double kNoThirdDecimal = 0x1p46;
    const double magnitude = std::abs(number);
    if (!(magnitude < kNoThirdDecimal)) return number;
    if (magnitude < 0.005) return 0;

    char buffer[40];
    const auto [end, error] =
        std::to_chars(buffer, std::end(buffer), magnitude, std::chars_format::fixed);
    const std::string_view text(buffer, end);
    const std::size_t point = text.find('.');
    if (point == text.npos || text.size() <= point + 3) return number;
    return std::copysign(CentsOf(text, point) / 100, number);
}

std::u16string NumberText(double number) {
    if (std::isnan(number)) return u"NaN";
    if (std::isinf(number)) return number > 0 ? u"Infinity" : u"-Infinity";
    if (number == 0) return u"0";
    char buffer[32];
    const auto [end, error] =
        std::to_chars(buffer, std::end(buffer), number, std::chars_format::general, 15);
    std::replace(buffer, end, 'e', 'E');
    return Widened(buffer, end);
}

void AppendInteger(std::u16string& out, std::int64_t number) {
    char buffer[24];
    const auto [end, error] = std::to_chars(buffer, std::end(buffer), number);
    // append() would first make a temporary text of these bytes.
    const std::size_t start = out.size();
    out.resize(start + static_cast<std::size_t>(end - buffer));
    std::copy(buffer, end, out.begin() + static_cast<std::ptrdiff_t>(start));
}

std::u16string IntegerText(std::int64_t number) {
    std::u16string text;
    AppendInteger(text, number);
    return text;
}

std::u16string BooleanText(bool value) {
    return value ? u"True" : u"False";
}

}  // namespace halvek
