// SPDX-License-Identifier: MIT
#include "fuzz/FuzzTarget.h"
#include "tests/FakeServices.h"

#include <halvekutils/base/NumericText.h>
#include <halvekutils/dialogs/Calculator.h>
#include <halvekutils/scripted/ScriptedPlatform.h>

#include <cmath>

using namespace halvek;

namespace {

/// Cents as the calculator shows them: "12.5", "-0.05", "3".
std::u16string ShownCents(std::int64_t cents) {
    const std::int64_t size = std::abs(cents);
    std::u16string text = (cents < 0 ? u"-" : u"") + IntegerText(size / 100);
    if (size % 100 != 0) text += u'.' + IntegerText(100 + size % 100).substr(1);
    if (size % 100 != 0 && size % 10 == 0) text.pop_back();
    return text;
}

void PressAmount(Calculator& calculator, std::int64_t cents) {
    for (const char16_t key : ShownCents(cents)) {
        calculator.Press(key == u'.' ? Calculator::kPoint : key - u'0');
    }
}

/// Amounts multiplied by up to two others, then added and subtracted, give to the cent what whole
/// numbers give. Doubles differ from decimals when a difference ends in half a cent.
void CheckChain(FuzzedDataProvider& input, Calculator& calculator) {
    constexpr std::int64_t kCent = 10'000;  // totals are in millionths
    auto factors = input.ConsumeIntegralInRange(0, 2);
    const auto first = input.ConsumeIntegralInRange<std::int64_t>(0, 9'999'999);
    PressAmount(calculator, first);
    for (std::int64_t total = first * kCent; std::abs(total) < kCent * 1'000'000'000;) {
        const bool isHalf = std::abs(total) % kCent == kCent / 2;
        if (input.remaining_bytes() == 0 || (factors == 0 && isHalf)) {
            calculator.Press(Calculator::kEquals);
            const std::int64_t cents = (total + (total < 0 ? -kCent : kCent) / 2) / kCent;
            return Require(calculator.Display() == ShownCents(cents), "the sum to the cent");
        }
        const auto operand = input.ConsumeIntegralInRange<std::int64_t>(0, 999);
        if (factors > 0) {
            --factors;
            calculator.Press(Calculator::kMultiply);
            total = total * operand / 100;
        } else {
            const bool minus = input.ConsumeBool();
            calculator.Press(minus ? Calculator::kMinus : Calculator::kPlus);
            total += (minus ? -kCent : kCent) * operand;
        }
        PressAmount(calculator, operand);
    }
}

bool IsLegal(const std::u16string& text) {
    return text.empty() || text == u"." || text == u"ERROR" || IsNumeric(text);
}

void PlayKeys(FuzzedDataProvider& input, Calculator& calculator) {
    while (input.remaining_bytes() > 0 && calculator.IsOpen()) {
        switch (input.ConsumeIntegralInRange(0, 7)) {
            case 0:
                calculator.HookedKeyDown(input.ConsumeIntegralInRange(0, 130));
                break;
            case 1: {
                if (input.ConsumeBool()) calculator.FocusOn(Calculator::kBox);
                const std::u16string before = calculator.Display();
                const char16_t key = input.ConsumeIntegral<std::uint8_t>();
                if (!calculator.KeyPress(key) || key == u'\b') break;
                const bool isPoint = key == u'.' && before.find(u'.') == before.npos;
                Require(isPoint || (key >= u'0' && key <= u'9'), "the box takes numbers only");
                if (IsNumeric(before + key)) calculator.EditDisplay(before + key);
                break;
            }
            case 2:
                calculator.KeyDown(input.ConsumeIntegralInRange(0, 130));
                break;
            case 3:
                calculator.Paste(Narrowed(FuzzText(input, 9), u"0123456789.eE+-$(,)"),
                                 input.ConsumeIntegralInRange(0u, 20u),
                                 input.ConsumeIntegralInRange(0u, 20u));
                break;
            case 4:
                Require(calculator.Copy().empty() || IsNumeric(calculator.Copy()), "a number");
                break;
            case 5: {
                const double before = std::abs(Val(calculator.Display()));
                calculator.Press(input.ConsumeIntegralInRange(0, 9));
                Require(std::abs(Val(calculator.Display())) <= 10 * before + 9, "one more digit");
                break;
            }
            default:
                calculator.Press(input.ConsumeIntegralInRange(-1, 17));
        }
        Require(IsLegal(calculator.Display()), "the display shows a number or ERROR");
        Require(IsLegal(calculator.Accumulator()), "the left operand is a number or ERROR");
    }
    const std::u16string shown = calculator.Display();
    const bool ended = !calculator.IsOpen();
    calculator.Press(Calculator::kReturn);
    Require(ended || calculator.Result() == shown, "RET returns what is shown");
}

}  // namespace

void halvek::Check(FuzzedDataProvider& input) {
    FakeServices session;
    ScriptedPlatform desktop;
    const auto kind = input.ConsumeIntegralInRange(0, 2);
    Calculator calculator(kind == 0 ? std::u16string() : FuzzText(input, 16), session, desktop);
    Require(IsLegal(calculator.Display()), "it starts with a number or nothing");
    if (kind == 0) CheckChain(input, calculator);
    if (kind > 0) PlayKeys(input, calculator);
    Require(desktop.StockMessages().empty(), "every operator is known");
}
