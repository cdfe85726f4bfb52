// SPDX-License-Identifier: MIT
#include "fuzz/FuzzTarget.h"
#include "tests/FakeServices.h"

#include <halvekutils/base/NumericText.h>
#include <halvekutils/dialogs/Calculator.h>
#include <halvekutils/scripted/ScriptedPlatform.h>

#include <cmath>

using namespace halvek;

namespace {

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
    Calculator calculator(FuzzText(input, 16), session, desktop);
    Require(IsLegal(calculator.Display()), "it starts with a number or nothing");
    PlayKeys(input, calculator);
    Require(desktop.StockMessages().empty(), "every operator is known");
}
