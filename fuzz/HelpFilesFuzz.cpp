// SPDX-License-Identifier: MIT
#include "fuzz/DamagedFile.h"
#include "tests/HelpFile.h"

#include <halvekutils/base/RuntimeError.h>
#include <halvekutils/help/CompiledHelp.h>
#include <halvekutils/help/HelpSearch.h>

using namespace halvek;

void halvek::Check(FuzzedDataProvider& input) {
    static const HelpFile whole(200);
    static const std::string bytes = ReadFile(whole.Path());
    const auto damaged = whole.Beside(Damaged(bytes, input));
    try {
        const auto help = std::make_shared<CompiledHelp>(damaged);
        help->TopicOfContext(200);
        for (const HelpEntry& entry : help->Contents()) help->Has(entry.topic.path);
        HelpSearch search(help, u"line \"of the page\"");
        while (!search.AtEnd()) search.Step();
    } catch (const RuntimeError& fault) {
        Require(fault.Code() == Fault::DeviceError || fault.Code() == Fault::FileNotFound,
                "damage is a device error, or a name is lost");
    }
}
