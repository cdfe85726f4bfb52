// SPDX-License-Identifier: MIT
#include "fuzz/FuzzTarget.h"

#include <halvekutils/base/RuntimeError.h>
#include <halvekutils/printers/Cups.h>
#include <halvekutils/printers/CupsPrinters.h>
#include <halvekutils/printers/PrinterAnswer.h>

using namespace halvek;

namespace {

/// An answer with the beginning of a good one, then attributes of queues made of the input.
std::string AnswerOf(FuzzedDataProvider& input) {
    static constexpr const char* kNames[] = {"printer-name", "device-uri", "printer-make-and-model",
                                             "", "x"};
    std::string answer("\2\0\0\0\0\0\0\1", 8);
    const auto add = [&answer](const std::string& text) {
        (answer += static_cast<char>(text.size() >> 8)) += static_cast<char>(text.size() & 0xFF);
        answer += text;
    };
    while (input.remaining_bytes() > 0) {
        if (input.ConsumeBool())
            answer += static_cast<char>(input.ConsumeIntegral<std::uint8_t>() % 6);
        answer += static_cast<char>(input.ConsumeIntegral<std::uint8_t>());
        add(kNames[input.ConsumeIntegral<std::uint8_t>() % std::size(kNames)]);
        add(input.ConsumeRandomLengthString(40));
    }
    return answer += '\3';
}

}  // namespace

void halvek::Check(FuzzedDataProvider& input) {
    static const Cups cups(CupsPrinters::kLibrary);
    const std::string answer =
        input.ConsumeBool() ? input.ConsumeRemainingBytesAsString() : AnswerOf(input);
    try {
        for (const InstalledPrinter& queue : QueuesInAnswer(cups, answer)) {
            Require(!queue.deviceName.empty(), "every queue has a name");
        }
    } catch (const RuntimeError& fault) {
        Require(fault.Code() == Fault::DeviceError, "a bad answer is a device error");
    }
}
