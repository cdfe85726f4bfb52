// SPDX-License-Identifier: MIT
#include "fuzz/FuzzTarget.h"
#include "tests/HelpFile.h"

#include <halvekutils/base/RuntimeError.h>
#include <halvekutils/help/CompiledHelp.h>
#include <halvekutils/help/HelpSearch.h>

using namespace halvek;

namespace {

/// A file with some of its bytes replaced, and perhaps cut off.
std::string Damaged(std::string file, FuzzedDataProvider& input) {
    const bool isCut = input.ConsumeBool();
    const std::size_t parts = input.ConsumeIntegral<std::uint8_t>();
    while (input.remaining_bytes() > 0) {
        const auto at = input.ConsumeIntegralInRange<std::size_t>(0, file.size() - 1);
        const std::string bytes =
            input.ConsumeBytesAsString(input.ConsumeIntegralInRange<std::size_t>(1, 8));
        file.replace(at, bytes.size(), bytes);
    }
    if (isCut) file.resize(file.size() * parts / 255);
    return file;
}

}  // namespace

void halvek::Check(FuzzedDataProvider& input) {
    static const HelpFile whole(200);
    static const std::string bytes = ReadFile(whole.Path());
    const std::string damaged = Damaged(bytes, input);
    try {
        const auto help = std::make_shared<CompiledHelp>(whole.Beside(damaged));
        Require(damaged.size() == bytes.size(), "a file that is cut off is a fault");
        help->TopicOfContext(200);
        for (const HelpEntry& entry : help->Contents()) help->Has(entry.topic.path);
        HelpSearch search(help, u"line");
        while (!search.AtEnd()) search.Step();
    } catch (const RuntimeError& fault) {
        Require(fault.Code() == Fault::DeviceError || fault.Code() == Fault::FileNotFound,
                "damage is a device error, or a name is lost");
    }
}
