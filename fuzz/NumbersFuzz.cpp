// SPDX-License-Identifier: MIT
#include "fuzz/FuzzTarget.h"

#include <halvekutils/base/NumericText.h>

#include <cmath>
#include <regex>

using namespace halvek;

namespace {

/// The number that a text begins with, as the C library reads it.
void CheckValue(const std::u16string& text) {
    const std::string start =
        ToCodePage(text.substr(0, text.find_first_not_of(u"0123456789.eE+- \t")));
    Require(Val(text) == std::strtod(start.c_str(), nullptr), "its value");
    Require(Val(text) != 0 || !std::signbit(Val(text)), "nothing has no sign");
}

/// A text as an amount: a grammar tells whether it is one, the C library how much it is.
std::optional<double> AmountIn(std::string text) {
    static const std::string number = R"((\d+(,\d+)*(\.\d*)?|\.\d+)([eE][+-]?\d+)?)";
    static const std::string forms = R"([ \t]*([+-]?\$?N|\$[+-]N|\$?N[+-]|\$?\(N\)|\(\$N\))[ \t]*)";
    static const std::regex amount(std::regex_replace(forms, std::regex("N"), number));
    if (!std::regex_match(text, amount)) return std::nullopt;
    std::erase_if(
        text, [](char c) { return std::string_view("$, \t").find(c) != std::string_view::npos; });
    const bool negative = text.front() == '-' || text.front() == '(' || text.back() == '-';
    const double size = std::strtod(text.c_str() + text.find_first_not_of("+-("), nullptr);
    if (!std::isfinite(size)) return std::nullopt;
    return negative ? -size : size;
}

void CheckNumber(const std::u16string& text) {
    const auto number = ToNumber(text);
    Require(IsNumeric(text) == number.has_value(), "both numeric tests agree");
    Require(number == AmountIn(ToCodePage(text)), "an amount as a whole, or none");
    if (!number) return;
    Require(*number != 0 || !std::signbit(*number), "nothing has no sign");
    const auto again = ToNumber(NumberText(*number));
    const bool close = again && std::abs(*again - *number) <= std::abs(*number) * 1e-14;
    Require(close || std::abs(*number) > 1.79e308, "a number's text reads back");
}

}  // namespace

void halvek::Check(FuzzedDataProvider& input) {
    const auto length = input.ConsumeIntegralInRange<std::size_t>(1, 7);
    const std::u16string text = RestAsText(input);
    CheckValue(text);
    CheckValue(Narrowed(text, u"0123456789.eE+- x"));
    CheckNumber(text.substr(0, 60));
    CheckNumber(Narrowed(text.substr(0, 20), u"0159.eE"));
    CheckNumber(Narrowed(text.substr(0, length), u"5.,$$()-+e "));
}
